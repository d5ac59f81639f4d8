// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Frame.h"

#include "hostExchange/PhotoshopServerDataStructure.h"

#include <QtCore/QByteArray>
#include <QtCore/QElapsedTimer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <string>

/*! How the other side is run. */
struct OtherSide
{
    QString program;
    QStringList arguments; // behind the record's path
    int timeLimitSeconds = 0;
};

/*!
    One call of the plug-in: sends a frame, runs the other side, receives its answer, each with a line on the standard
    output. A step that fails says why on the standard error and gives false, or null.

    Both sides use the same path: the other side's answer overwrites the request. That is safe because of their order:
    send() has ended before the other side is started, and receive() begins when it has ended. The pixels go with this
    object, the record stays.
*/
class CPluginSide
{
public:
    /*! \a recordPath must be one that narrowPath() can say. */
    explicit CPluginSide(const QString &recordPath);

    /*! \a iccProfile may be empty, \a imageFile is only told. */
    bool send(const CPackedFrame &frame, const QString &imageFile, const QByteArray &iccProfile);
    bool run(const OtherSide &otherSide);

    /*! The image that came back, with the colour profile of the answer. */
    QImage receive();

    void printTimes() const;

private:
    bool isAnswered();
    QImage takeImage(Pixels pixels);
    QString whyNoPixels() const;

    QString m_recordPath;
    std::string m_narrowPath;
    ZYX_zglv6::PhotoshopServerDataStructure m_answer; // its end deletes the pixels, whatever has happened
    FrameSize m_sentSize;
    int m_exitStatus = 0; // of the other side's process
    QElapsedTimer m_timer;
    qint64 m_sentAt = 0; // ms, as the next ones
    qint64 m_runAt = 0;
    qint64 m_receivedAt = 0;
};

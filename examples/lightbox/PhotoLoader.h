// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/eventLoop/RunnableItem.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QImage>

/*! Reads a photograph from its file and brings it to the size of a screen, on whatever thread carries it out. */
class CPhotoLoader final : public CQRunnableItem
{
    Q_OBJECT

public:
    explicit CPhotoLoader(QString path);

    // Once it has finished:

    /*! Null if the file is no image that can be read. */
    QImage image() const;
    QSize originalSize() const;
    QString error() const;

protected:
    void execute() override;

private:
    const QString m_path;
    QImage m_image;
    QSize m_originalSize;
    QString m_error;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtWidgets/QMessageBox>

#include <functional>

class QWidget;

/*!
    What can be done with a photograph's file. The questions are boxes above the window; what has failed is logged as
    well.
*/
class CPhotoFiles
{
    Q_DECLARE_TR_FUNCTIONS(CPhotoFiles)

public:
    struct Outcome
    {
        bool isDone = false;
        QString text; // for the user; empty if there is nothing to say
    };

    explicit CPhotoFiles(QWidget *window);

    /*! Moves \a photo to the trash if the user wants it, who may want no more questions unless it \a isChanged. */
    Outcome moveToTrash(const QString &photo, bool isChanged) const;

    /*!
        Saves what \a develop makes of the whole \a photo under a name that the user gives, in the format of its ending.
        Without an ending it gets that of the chosen filter, and then nothing is replaced.
    */
    Outcome savePrint(const QString &photo, const std::function<QImage(const QImage &)> &develop) const;

    /*! Whether to save the print of a \a photo that was turned: Save, Discard or Cancel. */
    QMessageBox::StandardButton askForTurned(const QString &photo) const;

    /*! Copies \a photo in its folder under a name that the user gives. Nothing is replaced. */
    Outcome saveCopy(const QString &photo) const;

    /*! What a copy and a print of the file \a name are called if nobody has a better name. */
    static QString nameOfCopy(const QString &name);
    static QString nameOfPrint(const QString &name);

private:
    bool askWhetherToTrash(const QString &photo, bool isChanged) const;
    /*! Empty for none. Changes \a filter to the chosen one of those for pictures. */
    QString askForNameOfPrint(const QString &photo, QString &filter) const;
    static Outcome copy(const QString &photo, const QString &name);

    QWidget *m_window;
};

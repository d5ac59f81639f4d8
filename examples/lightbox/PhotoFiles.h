// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtGui/QImage>

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

    /*! Moves \a photo to the trash if the user wants it, who may want no more questions about that. */
    Outcome moveToTrash(const QString &photo) const;

    /*! Saves \a print, which was made of \a photo, under a name that the user gives, in the format that its ending
     * tells. */
    Outcome savePrint(const QString &photo, const QImage &print) const;

    /*! Whether a turned print of \a photo may go: it was saved, or the user does not want it. */
    bool mayLeave(const QString &photo, const QImage &print) const;

    /*! Copies \a photo in its folder under a name that the user gives. Nothing is replaced. */
    Outcome saveCopy(const QString &photo) const;

    /*! What a copy and a print of the file \a name are called if nobody has a better name. */
    static QString nameOfCopy(const QString &name);
    static QString nameOfPrint(const QString &name);

private:
    bool askWhetherToTrash(const QString &photo) const;
    static Outcome copy(const QString &photo, const QString &name);

    QWidget *m_window;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/*!
    The photographs of one folder, and which of them is shown. Looks into the folder at each call: files come and go
    meanwhile. A photograph is a readable file with an image's extension that is not hidden.
*/
class CPhotoList
{
public:
    /*! \a path is a folder, or a file in it to begin with, whatever that holds. */
    explicit CPhotoList(const QString &path);

    QString folder() const;
    /*! Path of the current photograph; empty if the folder had none. */
    QString current() const;
    /*! The file to begin with counts, and has its place, even if it is no photograph. */
    qsizetype count() const;
    qsizetype position() const;

    /*! Go round at the ends. A current file that has gone is left for its neighbours. */
    void moveToNext();
    void moveToPrevious();
    /*! Goes to the next photograph, or the last one if there is none behind it; no longer counts the current file. */
    void leaveCurrent();

private:
    using Step = QString (*)(const QString &path);

    QStringList photographs() const;
    QStringList names() const;
    QString neighbour(Step step) const;
    void move(Step step, bool isForth);

    QString m_folder;
    QString m_name; // in the folder
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/*! The photographs of one folder, and which of them is shown. */
class CPhotoList
{
public:
    /*! \a path is a folder, or a file in it to begin with, whatever that holds. */
    explicit CPhotoList(const QString &path);

    /*! Path of the current photograph; empty if the folder has none. */
    QString current() const;
    qsizetype count() const;
    qsizetype position() const;

    /*! Go round at the ends. */
    void moveToNext();
    void moveToPrevious();

private:
    void move(qsizetype step);

    QStringList m_paths;
    qsizetype m_position = 0;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/*! How much there is to pack. */
struct Load
{
    const char *name;
    int files;
    int fileSize;

    qint64 size() const
    {
        return qint64(files) * fileSize;
    }
};

/*! Where a load lies and where it is put; all in one folder. */
struct TestFolder
{
    QString sources; // folder of the files, and of nothing else
    QString archive; // of these files
    QString joinedFiles; // their bytes one after the other
    QString packed; // what packing makes
    QString unpacked; // folder, where unpacking puts the files

    explicit TestFolder(const QString &folder);

    /*! Their names, in no order. */
    QStringList sourceFiles() const;

    /*! Makes the sources, the archive and the joined files, unless they are there. */
    [[nodiscard]] bool make(const Load &load) const;

    /*! Removes what packing and unpacking have made. */
    [[nodiscard]] bool clear() const;

    /*! Whether packing or unpacking has put all bytes of \a load somewhere. */
    bool isPacked(const Load &load) const;
    bool isUnpacked(const Load &load) const;
};

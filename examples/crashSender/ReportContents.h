// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QFileInfo>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

/*! What is in the archive of a report, unpacked into a folder that goes with this object. */
class CReportContents
{
public:
    /*! An archive that can't be read has no files, a damaged one those before the damage. */
    explicit CReportContents(const QString &archive);

    /*! Those in folders of the archive too, by name. */
    QFileInfoList files() const;

    /*! With the folders of the archive in it. */
    QString nameOf(const QFileInfo &file) const;

    /*! The files' names in one line. */
    QString names() const;

    /*! A file as something to read: as text, at most its first MiB; anything else as the hexadecimal first KiB. */
    static QString preview(const QString &path);

private:
    void unpack(const QString &archive) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

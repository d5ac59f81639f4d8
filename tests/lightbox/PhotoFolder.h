// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/*! A folder that a test fills; gone with the object. */
class PhotoFolder
{
public:
    /*! Made below \a parent. */
    explicit PhotoFolder(const QString &parent);

    QString path() const;
    QString filePath(const QString &name) const;

    /*! A real photograph, whatever its name says. */
    bool addPhoto(const QString &name, QSize size = QSize(40, 30)) const;
    bool addFile(const QString &name, const QByteArray &content = "no photograph") const;
    bool addFolder(const QString &name) const;
    bool remove(const QString &name) const;

    bool contains(const QString &name) const;
    QByteArray contentOf(const QString &name) const;
    QStringList names() const;

private:
    QTemporaryDir m_folder;
};

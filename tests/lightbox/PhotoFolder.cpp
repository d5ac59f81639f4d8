// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoFolder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QImage>

PhotoFolder::PhotoFolder(const QString &parent)
    : m_folder(QDir::cleanPath(parent) + u"/photos-XXXXXX")
{
}

QString PhotoFolder::path() const
{
    return m_folder.path();
}

QString PhotoFolder::filePath(const QString &name) const
{
    return m_folder.path() + u'/' + name;
}

bool PhotoFolder::addPhoto(const QString &name, QSize size) const
{
    QImage photo(size, QImage::Format_RGB32);
    photo.fill(Qt::darkGreen);
    return photo.save(filePath(name), "JPG");
}

bool PhotoFolder::addFile(const QString &name, const QByteArray &content) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

bool PhotoFolder::addFolder(const QString &name) const
{
    return QDir(path()).mkdir(name);
}

bool PhotoFolder::remove(const QString &name) const
{
    return QFile::remove(filePath(name));
}

bool PhotoFolder::contains(const QString &name) const
{
    return QFileInfo::exists(filePath(name));
}

QByteArray PhotoFolder::contentOf(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList PhotoFolder::names() const
{
    return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

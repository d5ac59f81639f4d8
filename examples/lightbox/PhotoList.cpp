// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoList.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

CPhotoList::CPhotoList(const QString &path)
{
    const QFileInfo given(path);
    const QDir folder = given.isDir() ? QDir(path) : given.absoluteDir();
    const QStringList filters = QString(ZYX_zglv6::imageFilter).split(u' ');
    for (const QFileInfo &photo : folder.entryInfoList(filters, QDir::Files | QDir::Readable, QDir::Name)) {
        m_paths.append(photo.absoluteFilePath());
    }
    if (!given.isDir() && !m_paths.contains(given.absoluteFilePath())) {
        m_paths.prepend(given.absoluteFilePath()); // whoever names a file hears what is wrong with it
    }
    m_position = qMax(qsizetype(0), m_paths.indexOf(given.absoluteFilePath()));
}

QString CPhotoList::current() const
{
    return m_paths.value(m_position);
}

qsizetype CPhotoList::count() const
{
    return m_paths.size();
}

qsizetype CPhotoList::position() const
{
    return m_position;
}

void CPhotoList::moveToNext()
{
    move(1);
}

void CPhotoList::moveToPrevious()
{
    move(-1);
}

void CPhotoList::move(qsizetype step)
{
    if (!m_paths.isEmpty()) {
        m_position = (m_position + step + m_paths.size()) % m_paths.size();
    }
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoList.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

using namespace ZYX_zglv6;

namespace {

bool isPhotograph(const QFileInfo &file)
{
    const QString name = file.fileName();
    return file.isFile() && file.isReadable() && !file.isHidden()
        && std::any_of(imageExtensions.begin(), imageExtensions.end(),
                       [&name](QLatin1StringView extension) { return name.endsWith(extension, Qt::CaseInsensitive); });
}

/*! Where \a name is among \a names, or would be, in the order in which a folder is listed. */
qsizetype placeOf(const QString &name, const QStringList &names)
{
    const auto place = std::lower_bound(names.begin(), names.end(), name,
                                        [](const QString &a, const QString &b) { return a.toLower() < b.toLower(); });
    return place - names.begin();
}

} // namespace

CPhotoList::CPhotoList(const QString &path)
{
    const QFileInfo given(QDir::cleanPath(path));
    m_folder = given.isDir() ? given.absoluteFilePath() : given.absolutePath();
    // Whoever names a file hears what is wrong with it.
    m_name = given.isDir() ? photographs().value(0) : given.fileName();
}

QString CPhotoList::folder() const
{
    return m_folder;
}

QString CPhotoList::current() const
{
    return m_name.isEmpty() ? QString() : QDir::cleanPath(m_folder + u'/' + m_name);
}

qsizetype CPhotoList::count() const
{
    return names().size();
}

qsizetype CPhotoList::position() const
{
    return qMax(qsizetype(0), names().indexOf(m_name));
}

void CPhotoList::moveToNext()
{
    move(getNextFilePath, true);
}

void CPhotoList::moveToPrevious()
{
    move(getPreviouseFilePath, false);
}

void CPhotoList::leaveCurrent()
{
    QStringList others = photographs();
    others.removeAll(m_name);
    m_name = others.value(qMin(placeOf(m_name, others), others.size() - 1));
}

/*! The entries that the neighbours come from, in the same order. */
QStringList CPhotoList::photographs() const
{
    QStringList names;
    for (const QFileInfo &entry :
         QDir(m_folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Name | QDir::IgnoreCase)) {
        if (isPhotograph(entry)) {
            names.append(entry.fileName());
        }
    }
    return names;
}

QStringList CPhotoList::names() const
{
    QStringList names = photographs();
    if (!m_name.isEmpty() && !names.contains(m_name)) {
        names.insert(placeOf(m_name, names), m_name);
    }
    return names;
}

/*! Name of the nearest photograph in the direction of \a step; empty at the end, or if the current file has gone. */
QString CPhotoList::neighbour(Step step) const
{
    QString path = step(current());
    while (!path.isEmpty() && !isPhotograph(QFileInfo(path))) {
        path = step(path);
    }
    return QFileInfo(path).fileName();
}

void CPhotoList::move(Step step, bool isForth)
{
    const QString next = neighbour(step);
    if (!next.isEmpty()) {
        m_name = next;
        return;
    }
    const bool isThere = QFileInfo::exists(current());
    const QStringList others = photographs();
    if (others.isEmpty()) {
        m_name = isThere ? m_name : QString();
        return;
    }
    const qsizetype end = isForth ? others.size() : 0;
    const qsizetype place = isThere ? end : placeOf(m_name, others);
    m_name = others.at((place + (isForth ? 0 : others.size() - 1)) % others.size());
}

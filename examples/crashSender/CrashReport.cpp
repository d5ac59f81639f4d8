// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QPair>

#include <exception>

using namespace ZYX_zglv6;

namespace {

using Archives = QMap<QString, QPair<QDateTime, qint64>>; // path, and time and size to know a changed one by

Archives archivesInFolder()
{
    Archives archives;
    const QDir folder(CStorageLocation::crashFilesPath());
    for (const QFileInfo &file : folder.entryInfoList({u"CrashReport_*.zip"_qs}, QDir::Files)) {
        archives.insert(file.absoluteFilePath(), {file.lastModified(), file.size()});
    }
    return archives;
}

/*!
    The library does not tell which archive it has made, nor whether it has. Its name says nothing: clocks are set back.
    Within a second of the last one it has the same name.
*/
QString archiveSince(const Archives &before)
{
    const Archives now = archivesInFolder();
    for (auto archive = now.begin(); archive != now.end(); ++archive) {
        if (before.value(archive.key()) != archive.value()) {
            return archive.key();
        }
    }
    return QString();
}

} // namespace

CCrashReport::CCrashReport(const QString &product, const QString &email, const QString &comment)
{
    const Archives before = archivesInFolder();
    if (!CZipCrashReport::isCrashDumpCreated(m_parser)) {
        m_archive = before.isEmpty() ? QString() : before.lastKey(); // the names carry the time
        m_origin = m_archive.isEmpty() ? Origin::None : Origin::Earlier;
        return;
    }
    m_origin = Origin::NotPacked;
    try {
        m_report = std::make_unique<CZipCrashReport>(product, email, comment, false, m_parser, nullptr);
    } catch (const std::exception &error) {
        ZYX_LOG('E', error.what());
        return;
    }
    m_archive = archiveSince(before);
    if (!m_archive.isEmpty()) {
        m_origin = Origin::New;
        m_email = email;
        m_comment = comment;
    }
}

CCrashReport::~CCrashReport() = default;

CCrashReport::Origin CCrashReport::origin() const
{
    return m_origin;
}

QString CCrashReport::archive() const
{
    return m_archive;
}

QString CCrashReport::email() const
{
    return m_email;
}

QString CCrashReport::comment() const
{
    return m_comment;
}

bool CCrashReport::setTexts(const QString &email, const QString &comment)
{
    if (email == m_email && comment == m_comment) {
        return true;
    }
    if (m_origin != Origin::New || !QFile::exists(m_archive)) { // it would be made anew, without the dump
        return false;
    }
    try {
        m_report->repack(email, comment);
    } catch (const std::exception &error) {
        ZYX_LOG('E', error.what());
        return false;
    }
    if (!QFile::exists(m_archive)) {
        return false;
    }
    m_email = email;
    m_comment = comment;
    return true;
}

QByteArray CCrashReport::read() const
{
    QFile file(m_archive);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

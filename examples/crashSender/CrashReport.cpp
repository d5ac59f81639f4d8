// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include "ReportContents.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtCore/QStringEncoder>

using namespace ZYX_zglv6;

namespace {

constexpr QLatin1StringView description("report.xml");

using Sizes = QMap<QString, qint64>; // of files, by name
using Archives = QMap<QString, QPair<QDateTime, qint64>>; // path, and time and size to know a changed one by

/*! The newest first by the time of writing: names have the local time, and an hour comes twice in autumn. */
QFileInfoList filesInFolder()
{
    return QDir(CStorageLocation::crashFilesPath()).entryInfoList({u"CrashReport_*.zip"_qs}, QDir::Files, QDir::Time);
}

Archives archivesInFolder()
{
    Archives archives;
    for (const QFileInfo &file : filesInFolder()) {
        archives.insert(file.absoluteFilePath(), {file.lastModified(), file.size()});
    }
    return archives;
}

/*!
    The library does not tell which archive it has made, nor whether it has. That need not be the newest: clocks are set
    back. Within a second of the last one it has the same name.
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

Sizes sizesIn(const CReportContents &contents)
{
    Sizes sizes;
    for (const QFileInfo &file : contents.files()) {
        sizes.insert(contents.nameOf(file), file.size());
    }
    sizes.remove(description);
    return sizes;
}

QByteArray contentOf(const CReportContents &contents, const QString &name)
{
    for (const QFileInfo &info : contents.files()) {
        QFile file(info.filePath());
        if (contents.nameOf(info) == name && file.open(QIODevice::ReadOnly)) {
            return file.readAll();
        }
    }
    return QByteArray();
}

/*! How a description ends: with the texts as they are. */
QByteArray endOfDescription(const QString &email, const QString &comment)
{
    const QString end
        = u"\n<Email>"_qs + email + u"</Email>\n<Comments>" + comment + u"</Comments>\n</ZyxCrashReport>\n";
    return QStringEncoder(QStringEncoder::Utf8).encode(end); // unlike toUtf8() with halves of characters
}

} // namespace

CCrashReport::CCrashReport(const QString &product, const QString &email, const QString &comment)
{
    if (!CZipCrashReport::isCrashDumpCreated(m_parser)) {
        const QFileInfoList earlier = filesInFolder();
        m_archive = earlier.isEmpty() ? QString() : earlier.front().absoluteFilePath();
        m_origin = m_archive.isEmpty() ? Origin::None : Origin::Earlier;
        return;
    }
    const Archives before = archivesInFolder();
    m_report = std::make_unique<CZipCrashReport>(product, email, comment, false, m_parser, nullptr);
    m_archive = archiveSince(before);
    if (m_archive.isEmpty()) {
        m_origin = Origin::NotPacked;
        return;
    }
    m_origin = Origin::New;
    m_email = email;
    m_comment = comment;
    m_packed = sizesIn(CReportContents(m_archive));
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
    if (m_isWhole && email == m_email && comment == m_comment) {
        return true;
    }
    if (m_origin != Origin::New || !QFile::exists(m_archive)) { // it would be made anew, without the dump
        return false;
    }
    m_report->repack(email, comment); // tells nothing
    m_isWhole = isWholeWith(email, comment);
    if (m_isWhole) {
        m_email = email;
        m_comment = comment;
    }
    return m_isWhole;
}

bool CCrashReport::isWholeWith(const QString &email, const QString &comment) const
{
    const CReportContents contents(m_archive);
    const Sizes sizes = sizesIn(contents);
    for (auto file = m_packed.begin(); file != m_packed.end(); ++file) {
        if (sizes.value(file.key(), -1) != file.value()) {
            return false;
        }
    }
    return contentOf(contents, description).endsWith(endOfDescription(email, comment));
}

QByteArray CCrashReport::read() const
{
    QFile file(m_archive);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

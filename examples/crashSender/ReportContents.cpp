// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportContents.h"

#include "utilsDll/crashReport/compress.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <filesystem>

using namespace ZYX_zglv6;

namespace {

constexpr qint64 mostText = 1 << 20; // more than a person reads, and a text field still scrolls smoothly
constexpr qint64 mostBinary = 1 << 10;
constexpr qsizetype bytesInLine = 16;

QString translated(const char *text)
{
    return QCoreApplication::translate("CReportContents", text);
}

bool isControl(char byte)
{
    return quint8(byte) < 0x20 && byte != '\t' && byte != '\n' && byte != '\r' && byte != '\f' && byte != '\x1b';
}

bool isText(const QByteArray &bytes)
{
    if (std::any_of(bytes.begin(), bytes.end(), isControl)) {
        return false;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !text.isNull() && !decoder.hasError(); // a character that is cut at the end is none
}

QString hexLine(const QByteArray &bytes, qsizetype offset)
{
    QString characters;
    for (const char byte : bytes) {
        characters += byte >= ' ' && byte <= '~' ? QLatin1Char(byte) : QLatin1Char('.');
    }
    const QString numbers = QString::fromLatin1(bytes.toHex(' ')).leftJustified(3 * bytesInLine);
    return u"%1  %2 %3\n"_qs.arg(offset, 8, 16, QLatin1Char('0')).arg(numbers, characters);
}

QString hexView(const QByteArray &bytes)
{
    QString view;
    for (qsizetype offset = 0; offset < bytes.size(); offset += bytesInLine) {
        view += hexLine(bytes.mid(offset, bytesInLine), offset);
    }
    return view;
}

} // namespace

CReportContents::CReportContents(const QString &archive)
    : m_folder(std::make_unique<QTemporaryDir>())
{
    if (!m_folder->isValid()) { // its path is empty then, and that is the current folder
        ZYX_LOG('E', m_folder->errorString());
        return;
    }
    unpack(archive);
}

/*! The library makes folders one level deep, and throws at a deeper one: it is made here then. */
void CReportContents::unpack(const QString &archive) const
{
    for (bool isMade = true; isMade;) {
        isMade = false;
        try {
            DecompressFiles(QFileInfo(archive), QDir(m_folder->path()), QString()); // its result is no verdict
        } catch (const std::filesystem::filesystem_error &error) {
            const QDir missing(QFileInfo(error.path1()).absoluteFilePath());
            isMade = !missing.exists() && missing.mkpath(u"."_qs);
            ZYX_LOG(isMade ? 'D' : 'E', error.what());
        }
    }
}

QFileInfoList CReportContents::files() const
{
    QFileInfoList files;
    if (!m_folder->isValid()) {
        return files;
    }
    for (QDirIterator all(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); all.hasNext();) {
        files += QFileInfo(all.next());
    }
    std::sort(files.begin(), files.end(), [](const QFileInfo &left, const QFileInfo &right) {
        return left.filePath().compare(right.filePath(), Qt::CaseInsensitive) < 0;
    });
    return files;
}

QString CReportContents::nameOf(const QFileInfo &file) const
{
    return QDir(m_folder->path()).relativeFilePath(file.filePath());
}

QString CReportContents::names() const
{
    QStringList names;
    for (const QFileInfo &file : files()) {
        names += nameOf(file);
    }
    return names.isEmpty() ? u"contents that can't be shown"_qs : names.join(u", ");
}

QString CReportContents::preview(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return translated("This file can't be read: %1").arg(file.errorString());
    }
    const QByteArray start = file.read(mostText);
    if (file.size() == 0) {
        return translated("This file is empty.");
    }
    const bool asText = isText(start);
    const QString view = asText ? QString::fromUtf8(start) : hexView(start.left(mostBinary));
    const qint64 shown = asText ? mostText : mostBinary;
    return file.size() > shown ? view + translated("\n(the first %1 bytes)").arg(shown) : view;
}

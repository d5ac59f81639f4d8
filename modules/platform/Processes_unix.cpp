// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Processes.h"

#include "platform/ElfVersionNote.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <climits>
#include <unistd.h>

namespace ZyxPlatform {

namespace {

// The kernel appends this to the link of a program whose file was removed or replaced while it runs.
constexpr QLatin1StringView removedFileMark(" (deleted)");

QString programLinkOf(const QString &processId)
{
    return QLatin1StringView("/proc/") + processId + QLatin1StringView("/exe");
}

/*! Where the link of a process points to; empty if the process has gone or belongs to somebody else. */
QString programOf(const QString &processId)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length
        = readlink(QFile::encodeName(programLinkOf(processId)).constData(), target.data(), target.size());
    if (length <= 0) {
        return {};
    }
    QString path = QFile::decodeName(QByteArray(target.data(), length));
    if (path.endsWith(removedFileMark) && !QFile::exists(path)) {
        path.chop(removedFileMark.size());
    }
    return path;
}

QString baseName(const QString &path)
{
    return path.section(u'/', -1);
}

} // namespace

QString currentProcessName()
{
    return baseName(programOf(QStringLiteral("self")));
}

QString pathOfFirstProcessNamed(const QString &name)
{
    const QStringList entries
        = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &entry : entries) {
        bool isProcess = false;
        entry.toUInt(&isProcess);
        if (isProcess && baseName(programOf(entry)).compare(name, Qt::CaseInsensitive) == 0) {
            // The link itself, not its target: it opens the running file even if another one lies at the path by now.
            return programLinkOf(entry);
        }
    }
    return {};
}

std::optional<FileVersion> fileVersion(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return readElfVersionNote(file);
}

} // namespace ZyxPlatform

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/FileUtils.h"

#include "platform/DiskSpace.h"
#include "platform/MonitorProfile.h"
#include "platform/RenameFile.h"
#include "platform/Trash.h"
#include "utilsDll/frame/Application.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore5Compat/QRegExp>

#include <algorithm>

namespace ZYX_zglv6 {

namespace {

constexpr qsizetype longestPath = 32766;
constexpr qsizetype longestPart = 260;

QString nativeAndClean(const QString &path)
{
    return QDir::cleanPath(QDir::toNativeSeparators(path));
}

bool containsAnyOf(const QString &text, QLatin1StringView characters)
{
    return std::any_of(text.begin(), text.end(), [&](QChar character) { return characters.contains(character); });
}

bool hasTooLongPart(const QString &path)
{
    const QStringList parts = path.split(QDir::separator(), Qt::SkipEmptyParts);
    return std::any_of(parts.begin(), parts.end(), [](const QString &part) { return part.size() > longestPart; });
}

/*! Matching changes an expression, so each call matches with a copy. */
bool isReservedName(const QString &name)
{
    static const QRegExp reserved(u"CON|PRN|AUX|NUL|COM1|COM2|COM3|COM4|COM5|COM6|COM7|COM8|COM9|"
                                  "LPT1|LPT2|LPT3|LPT4|LPT5|LPT6|LPT7|LPT8|LPT9"_qs,
                                  Qt::CaseInsensitive);
    return QRegExp(reserved).exactMatch(name);
}

bool endsInReservedName(const QString &path)
{
    static const QRegExp reserved(uR"(.*[/\\](CON|PRN|AUX|NUL|COM1|COM2|COM3|COM4|COM5|COM6|COM7|COM8|COM9|)"
                                  R"(LPT1|LPT2|LPT3|LPT4|LPT5|LPT6|LPT7|LPT8|LPT9))"_qs,
                                  Qt::CaseInsensitive);
    return QRegExp(reserved).exactMatch(path);
}

QString comparedText(const QFileInfo &file, FileManagement::CompareCondition condition)
{
    switch (condition) {
    case FileManagement::CompareFullPath:
        return nativeAndClean(file.filePath());
    case FileManagement::CompareFileName:
        return file.fileName();
    case FileManagement::CompareBaseName:
        return file.completeBaseName();
    }
    return {};
}

/*! Of a path that need not be there yet. */
QString canonicalPathOf(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    const QString folder = info.path();
    const bool isTop = folder == info.filePath(); // of a drive that is not there
    return isTop ? folder : canonicalPathOf(folder) + u'/' + info.fileName();
}

/*! By the system's own rules for letters; \a path need not be there yet. */
bool isBelow(const QString &path, const QFileInfo &folder)
{
    QString place = canonicalPathOf(path);
    for (QString above = QFileInfo(place).path(); above != place; above = QFileInfo(place).path()) {
        if (QFileInfo(above) == folder) {
            return true;
        }
        place = above;
    }
    return false;
}

/*! \a around: the folders that are being copied. */
bool copyEntry(const QString &source, const QString &target, const QFileInfoList &around)
{
    const QFileInfo info(source);
    if (!info.isDir()) {
        return (info.isFile() || !info.exists()) && QFile::copy(source, target); // a pipe would never end
    }
    // A link back to a folder above, or to one around the copy: it would copy what it has just copied, on and on.
    if (around.contains(info) || isBelow(target, info)) {
        return false;
    }
    if (!QDir(target).exists() && !QDir().mkpath(target)) {
        return false;
    }
    const QStringList names = QDir(source).entryList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        return copyEntry(nativeAndClean(source + QDir::separator() + name),
                         nativeAndClean(target + QDir::separator() + name), around + QFileInfoList{info});
    });
}

bool removeEntry(const QFileInfo &entry)
{
    if (entry.isDir() && !entry.isSymLink() && !entry.isJunction()) {
        return removeDirectoryContent(QDir(entry.absoluteFilePath()));
    }
    const QString path = entry.absoluteFilePath();
    return QFile::remove(path) || (entry.isDir() && QDir().rmdir(path)); // Windows: a link to a folder is a folder
}

QString neighbourOf(const QString &path, qsizetype step)
{
    if (path.isEmpty()) {
        return {};
    }
    const QFileInfo file(path);
    const QDir folder = file.dir();
    // with these filters spelled out, because QDir's own leave hidden entries and all but files and folders out
    QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::NoSort);
    names.removeAll(u".."_qs);
    names.removeAll(u"."_qs);
    const qsizetype place = names.indexOf(file.fileName());
    const qsizetype neighbour = place + step;
    if (place < 0 || neighbour < 0 || neighbour >= names.size()) {
        return {};
    }
    return folder.canonicalPath() + QDir::separator() + names.at(neighbour);
}

} // namespace

bool validateFileName(const QString &name, bool isPath)
{
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(name));
    if (path.isEmpty() || path.size() > longestPath || hasTooLongPart(path)) {
        return false;
    }
    if (containsAnyOf(path, isPath ? QLatin1StringView(R"(<>"|?*)") : QLatin1StringView(R"(<>"|?*:/\)"))) {
        return false;
    }
    if (path.contains(u".."_qs) || isReservedName(path)) {
        return false;
    }
    return !isPath || !endsInReservedName(path);
}

QString normalizedFilePath(const QString &path)
{
    return QDir::toNativeSeparators(path).toLower();
}

bool isEqualFileOrDirNames(const QFileInfo &a, const QFileInfo &b, FileManagement::CompareCondition condition)
{
    return comparedText(a, condition).compare(comparedText(b, condition), Qt::CaseInsensitive) == 0;
}

bool isEqualFileOrDirNames(const QString &a, const QString &b, FileManagement::CompareCondition condition)
{
    return isEqualFileOrDirNames(QFileInfo(a), QFileInfo(b), condition);
}

bool copyRecursively(const QString &source, const QString &target)
{
    return !target.isEmpty() && copyEntry(source, target, {}); // "" and a name would be a place in the root folder
}

bool removeDirectoryContent(const QDir &dir)
{
    if (!dir.exists()) {
        return false;
    }
    const QFileInfoList entries = dir.entryInfoList(
        QDir::Files | QDir::Hidden | QDir::System | QDir::AllDirs | QDir::NoDotAndDotDot, QDir::DirsFirst);
    // Without entries false, and so for a folder that is empty already: the product's own rule.
    return !entries.isEmpty() && std::all_of(entries.begin(), entries.end(), removeEntry);
}

bool renameFile(const QString &oldPath, const QString &newPath)
{
    return ZyxPlatform::renameFile(QDir::toNativeSeparators(QDir::cleanPath(oldPath)),
                                   QDir::toNativeSeparators(QDir::cleanPath(newPath)));
}

QString getNextFilePath(const QString &path)
{
    return neighbourOf(path, 1);
}

QString getPreviouseFilePath(const QString &path)
{
    return neighbourOf(path, -1);
}

FileManagement::ErrorCodes moveFileToTrash(const QString &path)
{
    const bool isMoved = QFileInfo::exists(path) && ZyxPlatform::moveToTrash(path);
    return isMoved ? FileManagement::FileOperationSucceeded : FileManagement::FileOperationFailed;
}

long long availableDiskSpace(const QString &path)
{
    return ZyxPlatform::availableDiskSpace(path);
}

std::string GetIccProfileFilePathFromSystem()
{
    return ZyxPlatform::monitorProfile(mainWindowHandle());
}

} // namespace ZYX_zglv6

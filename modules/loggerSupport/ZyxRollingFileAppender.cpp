// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "loggerSupport/ZyxRollingFileAppender.h"

#include "loggerSupport/LogText_p.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {

// Not named as the base class names its members, which would be found instead.
constexpr long mostBytes = 1'048'576;
constexpr int mostBackups = 10;
constexpr bool flushEachRecord = true;

} // namespace

ZyxRollingFileAppender::ZyxRollingFileAppender(const std::wstring &path)
    : ZyxRollingFileAppender(path, QFile::exists(QString::fromStdWString(path)))
{
}

ZyxRollingFileAppender::ZyxRollingFileAppender(const std::wstring &path, bool hasEarlierLog)
    : log4cplus::RollingFileAppender(ZYX_zglv6::toLogFileName(path), mostBytes, mostBackups, flushEachRecord)
{
    const QFileInfo file(QString::fromStdWString(path));
    if (!hasEarlierLog && file.size() == 0 && !file.isSymLink()) {
        // The base class has made the file, which is no log of an earlier run.
        out.close();
        QFile::remove(file.filePath());
    }
    imbue(ZYX_zglv6::logFileLocale());
    rollover();
}

ZyxRollingFileAppender::~ZyxRollingFileAppender() = default;

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/TestLog.h"

#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

namespace TestSupport {

TestLog::TestLog(const QString &dataDirectory)
{
    ZYX_zglv6::CStorageLocation::setDataDirectory(dataDirectory);
    ZYX_zglv6::initLogger(QStringLiteral("test"), ZYX_zglv6::LoggerTypeFile);
    m_path = ZYX_zglv6::CStorageLocation::loggerFilesPath() + u"test.txt";
    m_countAtStart = allRecords().size();
}

QString TestLog::path() const
{
    return m_path;
}

QStringList TestLog::records() const
{
    return allRecords().mid(m_countAtStart);
}

QStringList TestLog::allRecords() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression form(QStringLiteral("^\\d+ \\[[^\\]]*\\] (\\w+) +test\\.txt <> - (.*)$"));
    QStringList records;
    const QStringList lines = QString::fromUtf8(file.readAll()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = form.match(line);
        records.append(match.hasMatch() ? match.captured(1) + u' ' + match.captured(2) : line);
    }
    return records;
}

} // namespace TestSupport

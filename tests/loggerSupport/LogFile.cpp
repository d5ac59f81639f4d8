// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LogFile.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

QByteArray readLog(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll().replace("\r\n", "\n");
}

QStringList readRecords(const QString &path)
{
    static const QRegularExpression form(QStringLiteral("^\\d+ \\[\\d+\\] ([A-Z]+) [^<]+ <> - (.*)$"));
    QStringList records;
    const QStringList lines = QString::fromUtf8(readLog(path)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = form.match(line);
        records.append(match.hasMatch() ? match.captured(1) + u' ' + match.captured(2) : line);
    }
    return records;
}

QStringList readHostRecords(const QString &path)
{
    QStringList records = readRecords(path);
    records.removeIf([](const QString &record) {
        return record == u"INFO Logger::getInstance(ZyxLogger)" || record.startsWith(u"DEBUG ZYX_zglv6::initLogger: ")
            || record.startsWith(u"DEBUG ZYX_zglv6::CStorageLocation::logInformation: ");
    });
    return records;
}

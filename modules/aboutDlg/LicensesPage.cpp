// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/LicensesPage_p.h"

#include "platform/Registry.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>

namespace ZYX_zglv6 {

namespace {

// A licence has some 30 KiB, a whole system's list of them 2 MiB; laying out 1 MiB takes half a second to a second.
constexpr qint64 largestFile = qint64(2) * 1024 * 1024;
constexpr qsizetype longestPage = qsizetype(4) * 1024 * 1024; // in characters, with what stands at the ends of lines

constexpr QLatin1StringView pageHead(
    "<html><head><title></title>"
    "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\">"
    "<style type=\"text/css\">"
    "body { scrollbar-face-color: #5c5c5c; scrollbar-shadow-color: #3c3c3c; scrollbar-highlight-color: #6c6c6c;"
    " scrollbar-3dlight-color: #5c5c5c; scrollbar-darkshadow-color: #3c3c3c; scrollbar-track-color: #3c3c3c;"
    " scrollbar-arrow-color: #2c2c2c; }"
    "* { font-family: 'Roboto Light', arial, verdana, sans-serif; color: #999999; font-size: 13px; }"
    "a { color: #a33f12; text-decoration: underline; font-size: 13px; }"
    "a:hover { text-decoration: none; }"
    "p { margin: 0 6px; }"
    "span { color: #999999; }"
    "</style></head><body><div><p><hr></p>");
constexpr QLatin1StringView pageEnd("</div></body></html>");
constexpr QLatin1StringView separator("<br>******************************************************<br><br>");

QString askForLicensesDir()
{
    const auto store = ZyxPlatform::openMachineStore(organizationName, productDisplayName);
    const QString plugInFolder = store->value(pluginFolderKey).toString();
    return plugInFolder.isEmpty() ? QString() : QDir::cleanPath(plugInFolder + QDir::separator() + u"Licenses"_qs);
}

bool hasBlanks(const QString &fileName)
{
    return fileName.endsWith(u"log4Cplus license.txt", Qt::CaseInsensitive);
}

/*! Empty also for a file that can't be read or is too large to be a licence. */
QString readLicense(const QFileInfo &entry)
{
    if (!entry.isFile()) {
        return {}; // a pipe would keep the program waiting
    }
    if (entry.size() > largestFile) {
        ZYX_LOG('W', u"skipped \"%1\": %2 bytes are too many for a license"_qs.arg(entry.filePath()).arg(entry.size()));
        return {};
    }
    QFile file(entry.filePath());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? readLicenseFile(&file) : QString();
}

} // namespace

QString get3rdPartyLicensesDir()
{
    static QString dir;
    if (dir.isEmpty()) {
        dir = askForLicensesDir();
    }
    return dir;
}

QString readLicenseFile(QFile *file)
{
    if (!file) {
        return {};
    }
    QString text;
    QTextStream stream(file);
    while (!stream.atEnd()) {
        text += stream.readLine() + u"<br>";
    }
    if (!text.isEmpty() && hasBlanks(file->fileName())) {
        text.replace(u"[yyyy]"_qs, QString::number(QDate::currentDate().year()));
        text.replace(u"[name of copyright owner]"_qs, u"Contributors to log4cplus project"_qs);
    }
    return text;
}

QStringList readLicenseFiles(const QString &folder)
{
    QStringList texts;
    qsizetype length = 0;
    const QFileInfoList entries = QDir(folder).entryInfoList({u"*.txt"_qs});
    for (const QFileInfo &entry : entries) {
        const QString text = readLicense(entry);
        if (text.isEmpty()) {
            continue;
        }
        if (length + text.size() > longestPage) {
            ZYX_LOG('W', u"skipped \"%1\": the page of licenses is full"_qs.arg(entry.filePath()));
            continue;
        }
        length += text.size();
        texts += text;
    }
    return texts;
}

QString createLicensesPage(const QString &acknowledgement, const QStringList &texts)
{
    return pageHead + acknowledgement.arg(separator) + texts.join(separator) + pageEnd;
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/crashReport/compress.h"
#include "utilsDll/crashReport/zipCrashReport.h"
#include "utilsDll/frame/SharedConstants.h"

#include <algorithm>
#include <filesystem>

using namespace ZYX_zglv6;

namespace Snippets {

//! [gather]
std::unique_ptr<CZipCrashReport> gatherCrashReport(const QString &email, const QString &comments)
{
    static const CBaseCrashParser parser; // has to outlive the report
    if (!CZipCrashReport::isCrashDumpCreated(parser)) {
        return nullptr;
    }
    return std::make_unique<CZipCrashReport>(productDisplayName, email, comments, false, parser, nullptr);
}
//! [gather]

//! [newest]
QString newestReport(const CZipCrashReport &report)
{
    const QDir folder(report.getZipFilePath());
    // By the time of writing: names have the local time, and an hour comes twice in autumn.
    const QStringList names = folder.entryList({u"CrashReport_*.zip"_qs}, QDir::Files, QDir::Time);
    return names.isEmpty() ? QString() : folder.absoluteFilePath(names.first());
}
//! [newest]

//! [send]
void sendReport(CZipCrashReport &report, const std::function<void(bool)> &tell)
{
    QObject::connect(&report, &CZipCrashReport::resultOfSend, &report, tell, Qt::SingleShotConnection);
    report.sendZipToServer();
}
//! [send]

//! [parser]
class CTextDumpParser : public CBaseCrashParser
{
public:
    QString getCrashDumpExtension() const override
    {
        return u".crash"_qs;
    }
};
//! [parser]

bool isTextDumpWaiting()
{
    return CZipCrashReport::isCrashDumpCreated(CTextDumpParser());
}

//! [archive]
bool copyThroughArchive(const QDir &from, const QDir &to, const QFileInfo &zipFile)
{
    if (!CompressDir(from, zipFile)) {
        return false; // nothing to pack, or no archive
    }
    try {
        DecompressFiles(zipFile, to, QString());
    } catch (const std::filesystem::filesystem_error &) {
        return false; // a folder could not be made
    }
    // The results do not tell whether each file has come through. Look.
    const QStringList names = from.entryList(QDir::Files);
    return std::all_of(names.begin(), names.end(), [&from, &to](const QString &name) {
        return QFileInfo(to.absoluteFilePath(name)).size() == QFileInfo(from.absoluteFilePath(name)).size();
    });
}
//! [archive]

} // namespace Snippets

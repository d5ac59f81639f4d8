// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Archives.h"

#include "Programs.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

namespace CrashTest {

namespace {

constexpr QLatin1StringView script("import base64, json, sys, zipfile\n"
                                   "with zipfile.ZipFile(sys.argv[1]) as archive:\n"
                                   "    assert archive.testzip() is None\n"
                                   "    print(json.dumps({entry: base64.b64encode(archive.read(entry)).decode()\n"
                                   "                      for entry in archive.namelist()}))\n");

} // namespace

Entries entriesOf(const QString &archive)
{
    const QTemporaryDir folder;
    ZYX_zglv6::DecompressFiles(QFileInfo(archive), QDir(folder.path()), QString());
    Entries entries;
    for (const QFileInfo &file : QDir(folder.path()).entryInfoList(QDir::Files)) {
        entries.insert(file.fileName(), contentOf(file.filePath()));
    }
    return entries;
}

Entries entriesOfBytes(const QByteArray &archive)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"archive.zip"_qs);
    return writeFile(path, archive) ? entriesOf(path) : Entries();
}

Entries entriesByPython(const QString &archive, bool &isAvailable)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_qs);
    isAvailable = !python.isEmpty();
    QProcess process;
    process.start(python, {u"-c"_qs, script, archive});
    process.waitForFinished(programWatchdogMs);
    const QJsonObject object = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    Entries entries;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        entries.insert(entry.key(), QByteArray::fromBase64(entry->toString().toLatin1()));
    }
    return entries;
}

QByteArray expectedReport(const QByteArray &product, const QByteArray &config, const QByteArray &userId,
                          const QByteArray &email, const QByteArray &comments)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<ZyxCrashReport>\n<Product>" + product
        + "</Product>\n<Version>6.4.0.314</Version>\n<Config>" + config + "</Config>\n<UserId>" + userId
        + "</UserId>\n<Email>" + email + "</Email>\n<Comments>" + comments + "</Comments>\n</ZyxCrashReport>\n";
}

} // namespace CrashTest

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Registry.h"

#include "support/FreshProcess.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace {

const QString ownFile = QStringLiteral("/Zyx Labs/Zyx Grainlab 6.conf");
const QString fileOfTheOrganisation = QStringLiteral("/Zyx Labs.conf");

} // namespace

/*! Without the sandbox of other tests, which leaves one folder in place of XDG_CONFIG_DIRS. */
class tst_Registry_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void machineStore_isSoughtInAllFolders_data();
    void machineStore_isSoughtInAllFolders();
};

void tst_Registry_unix::machineStore_isSoughtInAllFolders_data()
{
    QTest::addColumn<QStringList>("files"); // each has its own place as its value
    QTest::addColumn<QString>("found");

    QTest::newRow("first") << QStringList{u"a"_qs + ownFile} << u"a"_qs + ownFile;
    QTest::newRow("second") << QStringList{u"b"_qs + ownFile} << u"b"_qs + ownFile;
    QTest::newRow("both") << QStringList{u"b"_qs + ownFile, u"a"_qs + ownFile} << u"a"_qs + ownFile;
    QTest::newRow("none") << QStringList{} << QString();
    QTest::newRow("of the organisation") << QStringList{u"a"_qs + fileOfTheOrganisation} << QString();
    QTest::newRow("of the user") << QStringList{u"home"_qs + ownFile} << QString();
}

void tst_Registry_unix::machineStore_isSoughtInAllFolders()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QStringList, files);
    const QTemporaryDir folder;
    QVERIFY(qputenv("XDG_CONFIG_DIRS", QFile::encodeName(folder.filePath(u"a"_qs) + u':' + folder.filePath(u"b"_qs))));
    QVERIFY(qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u"home"_qs))));
    for (const QString &file : files) {
        QSettings(folder.filePath(file), QSettings::IniFormat).setValue(u"Place"_qs, file);
    }
    const auto store = ZyxPlatform::openMachineStore(u"Zyx Labs"_qs, u"Zyx Grainlab 6"_qs);
    QTEST(store->value(u"Place"_qs).toString(), "found");
}

QTEST_GUILESS_MAIN(tst_Registry_unix)

#include "tst_Registry_unix.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/OnDisk.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

using namespace ZYX_zglv6;
using TestSupport::valueOnDisk;

class tst_TemporarySettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_makesFolderNamedByUuidInBraces();
    void constructor_makesOwnFolderForEachObject();
    void constructor_withRelativeFolder_usesItsAbsolutePath();
    void constructor_startsEmpty();
    void constructor_withInvalidFolder_reportsAndGoesOn();
    void constructor_withInvalidFolder_losesWrites();
    void tempSettingsPath_isFileInNativeSeparators();
    void tempSettingsPath_ofSeveralObjects_isTheLastOnes();
    void setSharedSettingsPath_changesOnlyTheReportedPath();
    void setSharedSettingsPath_leavesSharedFileAlone();
    void setValue_isOnDiskAtOnce();
    void remove_isOnDiskAtOnce();
    void clear_isOnDiskAtOnce();
    void value_data();
    void value();
    void contains_tellsOfKeysThatExist();
    void twoObjects_writeToTheirOwnFiles();
    void array_isWrittenAndReadBack();
    void beginWriteArray_isOnDiskAfterSync();
    void sync_readsWhatOthersWrote();
    void status_tellsOfDamagedFile();
    void destructor_removesFolderAndFile();
    void destroyed_comesWhenFileIsGone();

private:
    QDir parentFolder() const;

    TestSupport::Sandbox m_sandbox;
};

QDir tst_TemporarySettings::parentFolder() const
{
    const QDir folder(m_sandbox.filePath(u"parent"_qs));
    folder.mkpath(u"."_qs);
    return folder;
}

void tst_TemporarySettings::constructor_makesFolderNamedByUuidInBraces()
{
    const CTemporarySettings settings(parentFolder());
    const QStringList folders = parentFolder().entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    QCOMPARE(folders.size(), 1);
    // the last piece is what QTemporaryDir adds
    static const QRegularExpression form(
        u"^\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}\\.\\w{6}$"_qs);
    QVERIFY2(form.match(folders.first()).hasMatch(), qPrintable(folders.first()));
    QCOMPARE(QFileInfo(settings.tempSettingsPath()).dir(), QDir(parentFolder().filePath(folders.first())));
}

void tst_TemporarySettings::constructor_makesOwnFolderForEachObject()
{
    const CTemporarySettings first(parentFolder());
    const CTemporarySettings second(parentFolder());
    QCOMPARE(parentFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
}

void tst_TemporarySettings::constructor_withRelativeFolder_usesItsAbsolutePath()
{
    const QDir parent = parentFolder();
    const auto goBack = qScopeGuard([folder = QDir::currentPath()] { QDir::setCurrent(folder); });
    QVERIFY(QDir::setCurrent(parent.absolutePath()));

    const CTemporarySettings settings(QDir(u"."_qs));
    QVERIFY(QDir::isAbsolutePath(settings.tempSettingsPath()));
    QCOMPARE(parent.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void tst_TemporarySettings::constructor_startsEmpty()
{
    const CTemporarySettings settings(parentFolder());
    QCOMPARE(settings.status(), QSettings::NoError);
    QVERIFY(QFileInfo(settings.tempSettingsPath()).dir().isEmpty());
}

void tst_TemporarySettings::constructor_withInvalidFolder_reportsAndGoesOn()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString file = m_sandbox.filePath(u"noFolder"_qs);
    TestSupport::writeFile(file, "");
    const TestSupport::AssertionReports reports;

    CTemporarySettings settings{QDir(file)};
    static const QRegularExpression form(
        u"^ASSERT_X_RETURN in .*TemporarySettings\\.cpp line \\d+: Temporary folder is not valid!$"_qs);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(form.match(reports.texts().first()).hasMatch(), qPrintable(reports.texts().first()));
    QCOMPARE(log.records(),
             QStringList(u"ERROR ZYX_zglv6::CTemporarySettings::CTemporarySettings: " + reports.texts().first()));

    QCOMPARE(QFileInfo(settings.tempSettingsPath()).fileName(), u"zglv6.ini"_qs);
    QCOMPARE(settings.value(u"a"_qs, 5), QVariant(5));
    QVERIFY(!settings.contains(u"a"_qs));
    QCOMPARE(settings.beginReadArray(u"array"_qs), 0);
    settings.endArray();
}

void tst_TemporarySettings::constructor_withInvalidFolder_losesWrites()
{
    const QString file = m_sandbox.filePath(u"noFolder"_qs);
    TestSupport::writeFile(file, "");
    {
        const TestSupport::AssertionReports reports;
        CTemporarySettings settings{QDir(file)};
        settings.setValue(u"a"_qs, 1);
        QCOMPARE(settings.status(), QSettings::AccessError);
        QVERIFY(!QFileInfo::exists(settings.tempSettingsPath()));
        settings.remove(u"a"_qs);
        settings.clear();
        settings.beginWriteArray(u"array"_qs, 1);
        settings.endArray();
        settings.sync();
        QVERIFY(!QFileInfo::exists(settings.tempSettingsPath()));
    }
    QCOMPARE(QFileInfo(file).size(), 0);
}

void tst_TemporarySettings::tempSettingsPath_isFileInNativeSeparators()
{
    const CTemporarySettings settings(parentFolder());
    QCOMPARE(QFileInfo(settings.tempSettingsPath()).fileName(), u"zglv6.ini"_qs);
    QVERIFY(settings.tempSettingsPath().endsWith(QDir::separator() + u"zglv6.ini"_qs));
    QCOMPARE(settings.tempSettingsPath(), QDir::toNativeSeparators(settings.tempSettingsPath()));
}

void tst_TemporarySettings::tempSettingsPath_ofSeveralObjects_isTheLastOnes()
{
    const CTemporarySettings first(parentFolder());
    const auto firstPath = QString(first.tempSettingsPath()); // a copy: what is returned becomes the second one's
    QString secondPath;
    {
        const CTemporarySettings second(parentFolder());
        secondPath = second.tempSettingsPath();
        QVERIFY(firstPath != secondPath);
        QCOMPARE(first.tempSettingsPath(), secondPath);
    }
    QCOMPARE(first.tempSettingsPath(), secondPath); // also when it is gone
}

void tst_TemporarySettings::setSharedSettingsPath_changesOnlyTheReportedPath()
{
    CTemporarySettings settings(parentFolder());
    const QString ownPath = settings.tempSettingsPath();
    const QString sharedPath = m_sandbox.filePath(u"shared.ini"_qs);

    settings.setSharedSettingsPath(sharedPath);
    QCOMPARE(settings.tempSettingsPath(), sharedPath);
    settings.setValue(u"a"_qs, 1);
    QCOMPARE(valueOnDisk(ownPath, u"a"_qs).toInt(), 1);
    QVERIFY(!QFileInfo::exists(sharedPath));

    const CTemporarySettings other(parentFolder());
    QCOMPARE(settings.tempSettingsPath(), sharedPath);
    QVERIFY(other.tempSettingsPath() != sharedPath);

    settings.setSharedSettingsPath(QString());
    QCOMPARE(settings.tempSettingsPath(), other.tempSettingsPath());
}

void tst_TemporarySettings::setSharedSettingsPath_leavesSharedFileAlone()
{
    const QString sharedPath = m_sandbox.filePath(u"sharedByAnother.ini"_qs);
    TestSupport::writeFile(sharedPath, "a=1\n");
    {
        CTemporarySettings settings(parentFolder());
        settings.setSharedSettingsPath(sharedPath);
        QVERIFY(!settings.contains(u"a"_qs));
        settings.clear();
    }
    QCOMPARE(valueOnDisk(sharedPath, u"a"_qs).toInt(), 1);
    QVERIFY(parentFolder().isEmpty());
}

void tst_TemporarySettings::setValue_isOnDiskAtOnce()
{
    CTemporarySettings settings(parentFolder());
    settings.setValue(u"group/a"_qs, 1);
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"group/a"_qs).toInt(), 1);
    settings.setValue(u"group/a"_qs, u"\u043f\u0443\u043b\u044c\u0441"_qs);
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"group/a"_qs).toString(), u"\u043f\u0443\u043b\u044c\u0441"_qs);
    QCOMPARE(settings.status(), QSettings::NoError);
}

void tst_TemporarySettings::remove_isOnDiskAtOnce()
{
    CTemporarySettings settings(parentFolder());
    settings.setValue(u"a"_qs, 1);
    settings.setValue(u"b"_qs, 2);
    settings.remove(u"a"_qs);
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"a"_qs), QVariant());
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"b"_qs).toInt(), 2);
}

void tst_TemporarySettings::clear_isOnDiskAtOnce()
{
    CTemporarySettings settings(parentFolder());
    settings.setValue(u"a"_qs, 1);
    settings.setValue(u"group/b"_qs, 2);
    settings.clear();
    QVERIFY(!settings.contains(u"a"_qs));
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"a"_qs), QVariant());
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"group/b"_qs), QVariant());
}

void tst_TemporarySettings::value_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("defaultValue");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("stored") << u"a"_qs << QVariant(5) << QVariant(u"text"_qs);
    QTest::newRow("stored in a group") << u"group/a"_qs << QVariant() << QVariant(2);
    QTest::newRow("missing") << u"none"_qs << QVariant(5) << QVariant(5);
    QTest::newRow("missing, no default") << u"none"_qs << QVariant() << QVariant();
}

void tst_TemporarySettings::value()
{
    QFETCH(QString, key);
    QFETCH(QVariant, defaultValue);

    CTemporarySettings settings(parentFolder());
    settings.setValue(u"a"_qs, u"text"_qs);
    settings.setValue(u"group/a"_qs, 2);
    QTEST(settings.value(key, defaultValue), "value");
    if (!defaultValue.isValid()) {
        QTEST(settings.value(key), "value");
    }
}

void tst_TemporarySettings::contains_tellsOfKeysThatExist()
{
    CTemporarySettings settings(parentFolder());
    settings.setValue(u"group/a"_qs, 1);
    QVERIFY(settings.contains(u"group/a"_qs));
    QVERIFY(!settings.contains(u"a"_qs));
    QVERIFY(!settings.contains(u"group"_qs));
}

void tst_TemporarySettings::twoObjects_writeToTheirOwnFiles()
{
    CTemporarySettings first(parentFolder());
    const QString firstPath = first.tempSettingsPath();
    CTemporarySettings second(parentFolder());
    const QString secondPath = second.tempSettingsPath();

    first.setValue(u"a"_qs, 1);
    second.setValue(u"a"_qs, 2);
    QCOMPARE(valueOnDisk(firstPath, u"a"_qs).toInt(), 1);
    QCOMPARE(valueOnDisk(secondPath, u"a"_qs).toInt(), 2);
}

void tst_TemporarySettings::array_isWrittenAndReadBack()
{
    CTemporarySettings settings(parentFolder());
    settings.beginWriteArray(u"array"_qs);
    settings.setArrayIndex(0);
    settings.setValue(u"a"_qs, 10);
    settings.setArrayIndex(1);
    settings.setValue(u"a"_qs, 11);
    settings.endArray();
    settings.sync();
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"array/1/a"_qs).toInt(), 10);
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"array/2/a"_qs).toInt(), 11);

    QCOMPARE(settings.beginReadArray(u"array"_qs), 2);
    settings.setArrayIndex(1);
    QCOMPARE(settings.value(u"a"_qs).toInt(), 11);
    settings.endArray();
    QVERIFY(settings.contains(u"array/1/a"_qs));
}

void tst_TemporarySettings::beginWriteArray_isOnDiskAfterSync()
{
    CTemporarySettings settings(parentFolder());
    settings.beginWriteArray(u"array"_qs, 3);
    settings.endArray();
    QVERIFY(!QFileInfo::exists(settings.tempSettingsPath()));
    settings.sync();
    QCOMPARE(valueOnDisk(settings.tempSettingsPath(), u"array/size"_qs).toInt(), 3);
}

void tst_TemporarySettings::sync_readsWhatOthersWrote()
{
    CTemporarySettings settings(parentFolder());
    TestSupport::writeFile(settings.tempSettingsPath(), "a=1\n");
    QVERIFY(!settings.contains(u"a"_qs));
    settings.sync();
    QCOMPARE(settings.value(u"a"_qs).toInt(), 1);
}

void tst_TemporarySettings::status_tellsOfDamagedFile()
{
    CTemporarySettings settings(parentFolder());
    TestSupport::writeFile(settings.tempSettingsPath(), "[group without an end\n");
    settings.sync();
    QCOMPARE(settings.status(), QSettings::FormatError);
}

void tst_TemporarySettings::destructor_removesFolderAndFile()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QString path;
    {
        CTemporarySettings settings(parentFolder());
        path = settings.tempSettingsPath();
        settings.setValue(u"a"_qs, 1);
        settings.beginWriteArray(u"array"_qs);
        settings.setArrayIndex(0);
        settings.endArray(); // writes the size without a sync
        QVERIFY(QFileInfo::exists(path));
    }
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(parentFolder().isEmpty());
    QCOMPARE(log.records(), QStringList());
}

void tst_TemporarySettings::destroyed_comesWhenFileIsGone()
{
    auto settings = std::make_unique<CTemporarySettings>(parentFolder());
    settings->setValue(u"a"_qs, 1);
    bool isFileThere = true;
    connect(settings.get(), &QObject::destroyed, this,
            [&isFileThere, path = settings->tempSettingsPath()] { isFileThere = QFileInfo::exists(path); });
    settings.reset();
    QVERIFY(!isFileThere);
}

QTEST_MAIN(tst_TemporarySettings)

#include "tst_TemporarySettings.moc"

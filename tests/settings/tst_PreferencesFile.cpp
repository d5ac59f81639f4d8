// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/OnDisk.h"
#include "settings/SystemPlaces.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <stdexcept>

using namespace ZYX_zglv6;

namespace {

// Far more than any preferences file, and more than any buffer on the way.
constexpr qint64 hugeSize = 100'000'000;

constexpr qint64 largestFile = 1024LL * 1024;

/*! The text that getStringFromPreferencesFile() throws; empty if it doesn't. */
QString thrownText()
{
    try {
        CSettings::getStringFromPreferencesFile(u"k"_qs, u"default"_qs);
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

QString preference(const QString &key)
{
    return CSettings::getStringFromPreferencesFile(key, u"default"_qs);
}

} // namespace

class tst_PreferencesFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void option_hasOneNameForItselfAndItsValue();
    void getPreferencesFilePathFromCommandLine_data();
    void getPreferencesFilePathFromCommandLine();

    void getValueFromIniFile_data();
    void getValueFromIniFile();
    void getValueFromIniFile_withMissingFile_makesNone();
    void getValueFromIniFile_withEmptyPath_reportsOnceAndGivesDefault();
    void getValueFromIniFile_isNeverRedirected();

    void getString_beforeThePathIsSet_throws();
    void getString_withEmptyPath_throws();
    void getString_data();
    void getString();
    void getString_isNeverRedirected();
    void getString_seesLaterChangesOfTheFile();

    void damagedFile_losesNoMoreThanItMust_data();
    void damagedFile_losesNoMoreThanItMust();
    void hugeRandomFile_givesDefaults();
    void hugeEmptyFile_givesDefaults();
    void missingFile_givesDefaults();
    void folderAsFile_givesDefaults();
    void pipeAsFile_givesDefaults();
    void fileOverTheLimit_isNotReadAndLogged();
    void fileAtTheLimit_isRead();
    void unreadableFile_givesDefaults();

private:
    void givesDefaults() const;

    TestSupport::Sandbox m_sandbox;
    QString m_file;
};

void tst_PreferencesFile::init()
{
    m_file = m_sandbox.filePath(QString::fromUtf8(QTest::currentTestFunction()) + u"/Preferences.ini");
}

void tst_PreferencesFile::givesDefaults() const
{
    CStorageLocation::setPreferencesFilePath(m_file);
    QCOMPARE(preference(u"GlobalSettings/DataDirectory"_qs), u"default"_qs);
    QCOMPARE(preference(u"CAF/CafDbFilePath"_qs), u"default"_qs);
    QCOMPARE(preference(u"CAF/CafModulesPath"_qs), u"default"_qs);
}

void tst_PreferencesFile::option_hasOneNameForItselfAndItsValue()
{
    QCommandLineParser parser;
    CSettings::addPreferencesFileOption(parser);
    QCOMPARE(CSettings::preferencesFilePathCommandLineOption(), u"preferencesFile"_qs);

    QStringList optionLines; // none of them with a description
    for (const QString &line : parser.helpText().split(u'\n')) {
        if (line.contains(u"--")) {
            optionLines.append(line.trimmed());
        }
    }
    QCOMPARE(optionLines, QStringList(u"--preferencesFile <preferencesFile>"_qs));

    QVERIFY(parser.parse({u"host"_qs}));
    QVERIFY(!parser.isSet(u"preferencesFile"_qs));
    QCOMPARE(parser.value(u"preferencesFile"_qs), QString());
    QVERIFY(!parser.parse({u"host"_qs, u"--preferencesFile"_qs})); // it wants a value
}

void tst_PreferencesFile::getPreferencesFilePathFromCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("path");

    QTest::newRow("not given") << QStringList() << u"default"_qs;
    QTest::newRow("given in one") << QStringList(u"--preferencesFile=C:/a b.ini"_qs) << u"C:/a b.ini"_qs;
    QTest::newRow("given in two") << QStringList{u"--preferencesFile"_qs, u"/a"_qs} << u"/a"_qs;
    QTest::newRow("given empty") << QStringList(u"--preferencesFile="_qs) << QString();
    QTest::newRow("other arguments") << QStringList{u"picture.tif"_qs} << u"default"_qs;
    QTest::newRow("given twice") << QStringList{u"--preferencesFile=a"_qs, u"--preferencesFile=b"_qs} << u"b"_qs;
}

void tst_PreferencesFile::getPreferencesFilePathFromCommandLine()
{
    QFETCH(QStringList, arguments);

    QCommandLineParser parser;
    CSettings::addPreferencesFileOption(parser);
    QVERIFY(parser.parse(QStringList(u"host"_qs) + arguments));
    QTEST(CSettings::getPreferencesFilePathFromCommandLine(parser, u"default"_qs), "path");
}

void tst_PreferencesFile::getValueFromIniFile_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("top level") << u"a"_qs << QVariant(u"1"_qs);
    QTest::newRow("in a group") << u"CrashSender/HostName"_qs << QVariant(u"host.example"_qs);
    QTest::newRow("list") << u"list"_qs << QVariant(QStringList{u"x"_qs, u"y"_qs});
    QTest::newRow("empty value") << u"empty"_qs << QVariant(QString());
    QTest::newRow("beyond ASCII") << u"name"_qs << QVariant(u"\u043f\u0443\u043b\u044c\u0441"_qs);
    QTest::newRow("missing key") << u"none"_qs << QVariant(5);
    QTest::newRow("key of the group alone") << u"CrashSender"_qs << QVariant(5);
}

void tst_PreferencesFile::getValueFromIniFile()
{
    QFETCH(QString, key);

    TestSupport::writeFile(
        m_file, "a=1\nlist=x, y\nempty=\nname=\u043f\u0443\u043b\u044c\u0441\n[CrashSender]\nHostName=host.example\n");
    QTEST(CSettings::getValueFromIniFile(m_file, key, 5), "value");
}

void tst_PreferencesFile::getValueFromIniFile_withMissingFile_makesNone()
{
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"k"_qs, 5), QVariant(5));
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"k"_qs, QVariant()), QVariant());
    QVERIFY(!QFile::exists(m_file));
}

void tst_PreferencesFile::getValueFromIniFile_withEmptyPath_reportsOnceAndGivesDefault()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const TestSupport::AssertionReports reports;

    QCOMPARE(CSettings::getValueFromIniFile(QString(), u"k"_qs, 5), QVariant(5));
    static const QRegularExpression form(u"^ASSERT in .*Settings\\.cpp line \\d+$"_qs);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(form.match(reports.texts().first()).hasMatch(), qPrintable(reports.texts().first()));
    QCOMPARE(log.records(),
             QStringList(u"ERROR ZYX_zglv6::CSettings::getValueFromIniFile: " + reports.texts().first()));

    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"k"_qs, 5), QVariant(5));
    QCOMPARE(reports.texts().size(), 1); // a missing file is no reason to report
}

void tst_PreferencesFile::getValueFromIniFile_isNeverRedirected()
{
    TestSupport::writeFile(m_file, "a=file\n");
    CTemporarySettings temporary{QDir(m_sandbox.filePath(QString()))};
    CSettings::setTemporarySettings(temporary);
    CSettings().setValue(u"a"_qs, u"temporary"_qs);
    CSettings().setValue(u"b"_qs, u"temporary"_qs);
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"a"_qs, QVariant()), QVariant(u"file"_qs));
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"b"_qs, QVariant()), QVariant());
}

void tst_PreferencesFile::getString_beforeThePathIsSet_throws()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::AssertionReports reports;
    QCOMPARE(thrownText(), u"Preferences file path not set"_qs);
    QCOMPARE(reports.texts(), QStringList()); // comes before the file is asked
}

void tst_PreferencesFile::getString_withEmptyPath_throws()
{
    CStorageLocation::setPreferencesFilePath(m_file);
    QCOMPARE(thrownText(), QString());
    CStorageLocation::setPreferencesFilePath(QString());
    QCOMPARE(thrownText(), u"Preferences file path not set"_qs);
}

void tst_PreferencesFile::getString_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    QTest::newRow("value") << QByteArray("[G]\nk=value\n") << u"value"_qs;
    QTest::newRow("value with blanks, quoted") << QByteArray("[G]\nk=\" a b \"\n") << u" a b "_qs;
    QTest::newRow("number") << QByteArray("[G]\nk=12\n") << u"12"_qs;
    QTest::newRow("blank, quoted") << QByteArray("[G]\nk=\" \"\n") << u" "_qs;
    QTest::newRow("missing") << QByteArray("[G]\nother=value\n") << u"default"_qs;
    QTest::newRow("in another group") << QByteArray("k=value\n") << u"default"_qs;
    QTest::newRow("empty") << QByteArray("[G]\nk=\n") << u"default"_qs;
    QTest::newRow("empty, quoted") << QByteArray("[G]\nk=\"\"\n") << u"default"_qs;
    QTest::newRow("list, which is no text") << QByteArray("[G]\nk=a, b\n") << u"default"_qs;
    QTest::newRow("empty file") << QByteArray() << u"default"_qs;
}

void tst_PreferencesFile::getString()
{
    QFETCH(QByteArray, content);

    const QString file = m_sandbox.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".ini");
    TestSupport::writeFile(file, content);
    CStorageLocation::setPreferencesFilePath(file);
    QTEST(CSettings::getStringFromPreferencesFile(u"G/k"_qs, u"default"_qs), "text");
}

void tst_PreferencesFile::getString_isNeverRedirected()
{
    TestSupport::writeFile(m_file, "a=file\n");
    CStorageLocation::setPreferencesFilePath(m_file);
    CTemporarySettings temporary{QDir(m_sandbox.filePath(QString()))};
    CSettings::setTemporarySettings(temporary);
    CSettings().setValue(u"a"_qs, u"temporary"_qs);
    QCOMPARE(preference(u"a"_qs), u"file"_qs);
}

void tst_PreferencesFile::getString_seesLaterChangesOfTheFile()
{
    CStorageLocation::setPreferencesFilePath(m_file);
    TestSupport::writeFile(m_file, "a=1\n");
    QCOMPARE(preference(u"a"_qs), u"1"_qs);
    TestSupport::writeFile(m_file, "a=other\n");
    QCOMPARE(preference(u"a"_qs), u"other"_qs);
}

void tst_PreferencesFile::damagedFile_losesNoMoreThanItMust_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("behind");

    const QString lost = u"default"_qs;
    const QString good = u"good"_qs;
    const QByteArray manyBytes(1'000'000, 'x');

    QTest::newRow("none") << QByteArray() << good << good;
    QTest::newRow("line without a value") << QByteArray("no equals sign\n") << good << good;
    QTest::newRow("line without a key") << QByteArray("=value\n") << good << good;
    QTest::newRow("group not closed") << QByteArray("[open\nk=1\n") << good << good;
    QTest::newRow("group without a name") << QByteArray("[]\nk=1\n") << good << good;
    QTest::newRow("brackets the wrong way") << QByteArray("]x[\n") << good << good;
    QTest::newRow("zero bytes") << QByteArray("\0\0\0=\0x\n\0\n[\0]\n\0=\n", 16) << good << good;
    QTest::newRow("not UTF-8") << QByteArray("k=\xff\xfe\xc3\n\x80=1\n") << good << good;
    QTest::newRow("broken escapes") << QByteArray("%=1\n%ZZ=2\n%u12=3\nk=\\x\\q\\777\\\"\n") << good << good;
    QTest::newRow("long key") << manyBytes + "=1\n" << good << good;
    QTest::newRow("long value") << "k=" + manyBytes + '\n' << good << good;
    QTest::newRow("long group") << '[' + manyBytes + "]\n" << good << good;
    QTest::newRow("many separators in a key") << QByteArray(100'000, '/') + "=1\n" << good << good;
    QTest::newRow("many commas") << "k=" + QByteArray(100'000, ',') + '\n' << good << good;
    QTest::newRow("serialised rubbish") << QByteArray("k=@Variant(\\0\\0\\0\\xa\\x7f\\xff\\xff\\xfe)\n") << good
                                        << good;
    QTest::newRow("value made invalid") << QByteArray("DataDirectory=@Invalid()\n") << lost << good;
    QTest::newRow("value made a list") << QByteArray("DataDirectory=a,b\n") << lost << good;
    QTest::newRow("value given twice") << QByteArray("DataDirectory=second\n") << u"second"_qs << good;
    // These two reach over the lines that follow, by the rules of the format.
    QTest::newRow("quote not closed") << QByteArray("k=\"open\n") << good << lost;
    QTest::newRow("line goes on") << QByteArray("k=1\\\n") << good << lost;
}

void tst_PreferencesFile::damagedFile_losesNoMoreThanItMust()
{
    QFETCH(QByteArray, damage);

    const QString file = m_sandbox.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".ini");
    TestSupport::writeFile(file,
                           "[GlobalSettings]\nDataDirectory=good\n" + damage + "[CAF]\nCafModulesPath=good\n[Last]\n");
    CStorageLocation::setPreferencesFilePath(file);
    QTEST(preference(u"GlobalSettings/DataDirectory"_qs), "before");
    QTEST(preference(u"CAF/CafModulesPath"_qs), "behind");
    QCOMPARE(preference(u"CAF/CafDbFilePath"_qs), u"default"_qs);
}

void tst_PreferencesFile::hugeRandomFile_givesDefaults()
{
    QByteArray content(hugeSize, Qt::Uninitialized);
    QRandomGenerator random(20260101);
    random.generate(reinterpret_cast<quint32 *>(content.begin()), reinterpret_cast<quint32 *>(content.end()));
    TestSupport::writeFile(m_file, content);
    content.clear();
    givesDefaults();
    QVERIFY(QFile::remove(m_file));
}

void tst_PreferencesFile::hugeEmptyFile_givesDefaults()
{
    TestSupport::writeFile(m_file, QByteArray());
    QVERIFY(QFile::resize(m_file, hugeSize));
    givesDefaults();
    QVERIFY(QFile::remove(m_file));
}

void tst_PreferencesFile::missingFile_givesDefaults()
{
    givesDefaults();
    QVERIFY(!QFile::exists(m_file));
}

void tst_PreferencesFile::folderAsFile_givesDefaults()
{
    QVERIFY(QDir().mkpath(m_file));
    givesDefaults();
    QVERIFY(QDir(m_file).isEmpty());
}

void tst_PreferencesFile::pipeAsFile_givesDefaults()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_file).absolutePath()));
    if (!TestSupport::makePipe(m_file)) {
        QSKIP("This system has no pipes with a file name.");
    }
    givesDefaults(); // a reader of the pipe would wait for a writer
}

void tst_PreferencesFile::fileOverTheLimit_isNotReadAndLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    TestSupport::writeFile(m_file, "k=v\n;" + QByteArray(largestFile - 4, 'x'));
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"k"_qs, u"default"_qs), QVariant(u"default"_qs));
    QCOMPARE(
        log.records(),
        QStringList(
            u"ERROR ZYX_zglv6::`anonymous-namespace'::isWorthReading: Not read, as it is no file or larger than 1 MiB: "
            + m_file));
}

void tst_PreferencesFile::fileAtTheLimit_isRead()
{
    TestSupport::writeFile(m_file, "k=v\n;" + QByteArray(largestFile - 5, 'x'));
    QCOMPARE(QFileInfo(m_file).size(), largestFile);
    QCOMPARE(CSettings::getValueFromIniFile(m_file, u"k"_qs, u"default"_qs), QVariant(u"v"_qs));
}

void tst_PreferencesFile::unreadableFile_givesDefaults()
{
    TestSupport::writeFile(m_file, "[GlobalSettings]\nDataDirectory=secret\n");
    if (!QFile::setPermissions(m_file, {}) || QFileInfo(m_file).isReadable()) {
        QSKIP("No file can be kept from the user of this run.");
    }
    givesDefaults();
}

QTEST_MAIN(tst_PreferencesFile)

#include "tst_PreferencesFile.moc"

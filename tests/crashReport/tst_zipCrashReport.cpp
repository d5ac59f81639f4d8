// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ReportFolders.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "utilsDll/crashReport/compress.h"
#include "utilsDll/crashReport/zipCrashReport.h"
#include "utilsDll/settings/ApplicationState.h"

#include <QtCore/QDateTime>
#include <QtCore/QMetaMethod>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <utility>

using namespace ZYX_zglv6;
using TestSupport::entriesOf;
using TestSupport::Files;

namespace {

constexpr int watchdogMs = 30'000;

const CBaseCrashParser plainParser;

/*! A parser for another format of dumps. */
class OtherParser : public CBaseCrashParser
{
public:
    explicit OtherParser(QString extension)
        : m_extension(std::move(extension))
    {
    }

    QString parsePLCrashFile(const QString &path) const override
    {
        return path + u".txt";
    }

    QString getCrashDumpExtension() const override
    {
        return m_extension;
    }

    virtual void next()
    {
    }

private:
    QString m_extension;
};

/*! The lines of report.xml. */
QByteArray reportXml(const QByteArray &product, const QByteArray &config, const QByteArray &email,
                     const QByteArray &comments)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
           "<ZyxCrashReport>\n"
           "<Product>"
        + product
        + "</Product>\n"
          "<Version>6.4.0.314</Version>\n"
          "<Config>"
        + config
        + "</Config>\n"
          "<UserId>"
        + getUserID().toUtf8()
        + "</UserId>\n"
          "<Email>"
        + email
        + "</Email>\n"
          "<Comments>"
        + comments
        + "</Comments>\n"
          "</ZyxCrashReport>\n";
}

void printWhatIsThrown(const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::runtime_error &error) {
        std::puts(error.what());
    }
}

QString textOf(const QProcess &process, const QByteArray &output)
{
    return u"exit code %1\n"_qs.arg(process.exitCode()) + QString::fromUtf8(output).remove(u'\r');
}

} // namespace

class tst_zipCrashReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void parser_copiedAndMoved_isAParser();
    void parser_derived_copiesItsBase();
    void parser_operations_areTheFirstTwo();
    void parsePLCrashFile_returnsThePath_data();
    void parsePLCrashFile_returnsThePath();
    void isCrashDumpCreated_data();
    void isCrashDumpCreated();
    void isCrashDumpCreated_withoutTheFolder_isFalse();
    void metaObject_hasTheSignalAndThePrivateSlot();
    void withoutADataDirectory_constructorAndQuestionThrow();
    void repack_ofNothing_removesTheZipFile();

    void reportXml_hasTheTexts_data();
    void reportXml_hasTheTexts();
    void reportXml_hasTheLastLaunchMode_data();
    void reportXml_hasTheLastLaunchMode();
    void constructor_namesTheZipFileByTheLocalTime();
    void constructor_packsDumpLogsAndDescription();
    void constructor_withoutDump_packsDescriptionAndLogs();
    void constructor_archiveIsReadByOthers_data();
    void constructor_archiveIsReadByOthers();
    void constructor_logsEachCopy();
    void constructor_tellsThePathOfTheDescription();
    void constructor_targetOfACopyExists_keepsIt();
    void constructor_subfolderOfTheLogs_staysBehind();
    void constructor_dumpsInSubfolders_arePackedToo();
    void constructor_takesAParent();
    void constructor_asksNoParser();
    void getZipFilePath_isTheFolder();

    void repack_replacesTheTextsAlone();
    void repack_later_keepsTheName();
    void repack_twice_hasTheLastTexts();
    void repack_withoutContent_packsTheDescription_data();
    void repack_withoutContent_packsTheDescription();
    void repack_takesWhatWaitsInTheFolder();
    void repack_cannotUnpack_keepsTheZipFile();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_zipCrashReport::init()
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    QVERIFY(ReportFolders::empty());
}

void tst_zipCrashReport::cleanup()
{
    setLastLaunchMode(QString());
}

void tst_zipCrashReport::parser_copiedAndMoved_isAParser()
{
    CBaseCrashParser parser;
    QCOMPARE(parser.getCrashDumpExtension(), u".dmp"_qs);
    const CBaseCrashParser copy(parser);
    QCOMPARE(copy.getCrashDumpExtension(), u".dmp"_qs);
    CBaseCrashParser moved(std::move(parser));
    QCOMPARE(moved.getCrashDumpExtension(), u".dmp"_qs);
    CBaseCrashParser assigned;
    assigned = copy;
    QCOMPARE(assigned.parsePLCrashFile(u"a.dmp"_qs), u"a.dmp"_qs);
    assigned = std::move(moved);
    QCOMPARE(assigned.parsePLCrashFile(u"a.dmp"_qs), u"a.dmp"_qs);
}

void tst_zipCrashReport::parser_derived_copiesItsBase()
{
    const OtherParser parser(u".plcrash"_qs);
    const CBaseCrashParser &base = parser;
    QCOMPARE(base.getCrashDumpExtension(), u".plcrash"_qs);
    QCOMPARE(base.parsePLCrashFile(u"a.plcrash"_qs), u"a.plcrash.txt"_qs);
    const CBaseCrashParser copy(base); // NOLINT(performance-unnecessary-copy-initialization): what is tested
    QCOMPARE(copy.getCrashDumpExtension(), u".dmp"_qs);
}

void tst_zipCrashReport::parser_operations_areTheFirstTwo()
{
    const auto parse = TestSupport::virtualSlot(&CBaseCrashParser::parsePLCrashFile);
    if (!parse) {
        QSKIP("Pointers to members of this compiler do not tell the slot");
    }
    QCOMPARE(*parse, 0);
    QCOMPARE(*TestSupport::virtualSlot(&CBaseCrashParser::getCrashDumpExtension), 1);
    QCOMPARE(*TestSupport::virtualSlot(&OtherParser::next), 4); // behind the two entries of the destructor
}

void tst_zipCrashReport::parsePLCrashFile_returnsThePath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("absolute") << u"/dumps/a.dmp"_qs;
    QTest::newRow("relative with dots") << u"../dumps//a.dmp"_qs;
    QTest::newRow("backslashes") << u"C:\\dumps\\a.dmp"_qs;
    QTest::newRow("no ASCII") << u"\u0434\u0430\u043c\u043f \u65e5.dmp"_qs;
    QTest::newRow("empty") << u""_qs;
}

void tst_zipCrashReport::parsePLCrashFile_returnsThePath()
{
    QFETCH(const QString, path);
    QCOMPARE(CBaseCrashParser().parsePLCrashFile(path), path);
}

void tst_zipCrashReport::isCrashDumpCreated_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("no file") << u".dmp"_qs << QString() << false;
    QTest::newRow("one dump") << u".dmp"_qs << u"a.dmp"_qs << true;
    QTest::newRow("more dots") << u".dmp"_qs << u"a.b.dmp"_qs << true;
    QTest::newRow("upper case") << u".dmp"_qs << u"A.DMP"_qs << true;
    QTest::newRow("other extension") << u".dmp"_qs << u"a.txt"_qs << false;
    QTest::newRow("longer extension") << u".dmp"_qs << u"a.dmpx"_qs << false;
    QTest::newRow("without the dot") << u".dmp"_qs << u"admp"_qs << false;
    QTest::newRow("in a subfolder") << u".dmp"_qs << u"sub/a.dmp"_qs << false;
    QTest::newRow("folder of the name") << u".dmp"_qs << u"sub.dmp/a"_qs << true;
    QTest::newRow("other format, its dump") << u".plcrash"_qs << u"a.plcrash"_qs << true;
    QTest::newRow("other format, plain dump") << u".plcrash"_qs << u"a.dmp"_qs << false;
}

void tst_zipCrashReport::isCrashDumpCreated()
{
    QFETCH(const QString, extension);
    QFETCH(const QString, file);
    QFETCH(const bool, isFound);

    if (!file.isEmpty()) {
        QVERIFY(ReportFolders::write(ReportFolders::dumps() + u'/' + file, "dump"));
    }
    QCOMPARE(CZipCrashReport::isCrashDumpCreated(OtherParser(extension)), isFound);
    if (extension == plainParser.getCrashDumpExtension()) {
        QCOMPARE(CZipCrashReport::isCrashDumpCreated(plainParser), isFound);
    }
    QCOMPARE(ReportFolders::zipFiles(), QStringList());
}

void tst_zipCrashReport::isCrashDumpCreated_withoutTheFolder_isFalse()
{
    QVERIFY(QDir(ReportFolders::reports()).removeRecursively());
    QVERIFY(!CZipCrashReport::isCrashDumpCreated(plainParser));
}

void tst_zipCrashReport::metaObject_hasTheSignalAndThePrivateSlot()
{
    const QMetaObject &meta = CZipCrashReport::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::CZipCrashReport");
    QCOMPARE(meta.superClass()->className(), "QObject");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod result = meta.method(meta.methodOffset());
    QCOMPARE(result.methodSignature(), "resultOfSend(bool)");
    QCOMPARE(result.parameterNames(), QByteArrayList{"sendResult"});
    QCOMPARE(result.methodType(), QMetaMethod::Signal);
    const QMetaMethod answer = meta.method(meta.methodOffset() + 1);
    QCOMPARE(answer.methodSignature(), "httpResponce()");
    QCOMPARE(answer.methodType(), QMetaMethod::Slot);
    QCOMPARE(answer.access(), QMetaMethod::Private);
}

void tst_zipCrashReport::withoutADataDirectory_constructorAndQuestionThrow()
{
    QProcess process; // where it was never set
    process.start(QCoreApplication::applicationFilePath(), {u"--without-data-directory"_qs});
    QVERIFY(process.waitForFinished(watchdogMs));
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardOutput()).remove(u'\r'),
             u"Data directory is not set\nData directory is not set\n"_qs);
}

void tst_zipCrashReport::repack_ofNothing_removesTheZipFile()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QString file = ReportFolders::zipFiles().value(0);
    QVERIFY(ReportFolders::write(file, "no archive"));
    QVERIFY(QDir().mkpath(ReportFolders::dumps() + u"/report.xml")); // so that there is no description either
    report.repack(u"e"_qs, u"c"_qs);
    QVERIFY(!QFile::exists(file));
}

void tst_zipCrashReport::reportXml_hasTheTexts_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("comments");

    QTest::newRow("plain") << u"Grainlab"_qs << u"a@b.example"_qs << u"It stopped."_qs;
    QTest::newRow("empty") << u""_qs << u""_qs << u""_qs;
    QTest::newRow("e-mail with an ampersand") << u"Grainlab"_qs << u"a&b@c.example"_qs << u"x"_qs;
    QTest::newRow("mark-up") << u"<Grain & \"lab\">"_qs << u"'a' <a@b.example>"_qs
                             << u"1 < 2 && 3 > 2 &amp; </Email>"_qs;
    QTest::newRow("umlauts") << u"Gr\u00e4in"_qs << u"\u00fc@b.example"_qs << u"Fehler beim \u00d6ffnen \u00df"_qs;
    QTest::newRow("Japanese") << u"\u30d5\u30a3\u30eb\u30e0"_qs << u"a@b.example"_qs << u"\u65e5\u672c\u8a9e"_qs;
    QTest::newRow("beyond 16 bits") << u"G"_qs << u"a@b.example"_qs << u"\U0001f4f7"_qs;
    QTest::newRow("several lines") << u"G"_qs << u"a@b.example"_qs << u"one\ntwo\n\n  three\n"_qs;
    QTest::newRow("lines of Windows") << u"G"_qs << u"a@b.example"_qs << u"one\r\ntwo\ttab"_qs;
    QTest::newRow("placeholders") << u"%1"_qs << u"%2"_qs << u"%3 %n"_qs;
    QTest::newRow("long") << u"G"_qs << u"a@b.example"_qs << QString(100'000, u'\u00e4');
}

void tst_zipCrashReport::reportXml_hasTheTexts()
{
    QFETCH(const QString, product);
    QFETCH(const QString, email);
    QFETCH(const QString, comments);

    const CZipCrashReport report(product, email, comments, false, plainParser, nullptr);
    QCOMPARE(ReportFolders::zipFiles().size(), 1);
    const Files entries = entriesOf(ReportFolders::zipFiles().constFirst());
    QCOMPARE(entries.keys(), QStringList{u"report.xml"_qs});
    QCOMPARE(entries.value(u"report.xml"_qs),
             reportXml(product.toUtf8(), QByteArray(), email.toUtf8(), comments.toUtf8()));
}

void tst_zipCrashReport::reportXml_hasTheLastLaunchMode_data()
{
    QTest::addColumn<QString>("mode");

    QTest::newRow("Standalone") << u"Standalone"_qs;
    QTest::newRow("PS") << u"PS"_qs;
    QTest::newRow("LR") << u"LR"_qs;
    QTest::newRow("unknown, with mark-up") << u"<b> & c"_qs;
}

void tst_zipCrashReport::reportXml_hasTheLastLaunchMode()
{
    QFETCH(const QString, mode);
    setLastLaunchMode(mode);
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QCOMPARE(getUserID().size(), 36);
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).value(u"report.xml"_qs),
             reportXml("P", mode.toUtf8(), "e", "c"));
}

void tst_zipCrashReport::constructor_namesTheZipFileByTheLocalTime()
{
    RUN_IN_FRESH_PROCESS(); // which may have a time zone of its own
    qputenv("TZ", "XYZ-05:30");
    const QDateTime before = QDateTime::currentDateTime();
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(ReportFolders::zipFiles().size(), 1);
    const QString name = QFileInfo(ReportFolders::zipFiles().constFirst()).fileName();
    static const QRegularExpression form(u"^CrashReport_(\\d{14})\\.zip$"_qs);
    const QRegularExpressionMatch match = form.match(name);
    QVERIFY2(match.hasMatch(), qPrintable(name));
    QVERIFY2(match.captured(1) >= before.toString(u"yyyyMMddhhmmss"), qPrintable(name));
    QVERIFY2(match.captured(1) <= after.toString(u"yyyyMMddhhmmss"), qPrintable(name));
}

void tst_zipCrashReport::constructor_packsDumpLogsAndDescription()
{
    QByteArray dump;
    for (int i = 0; i < 100'000; ++i) {
        dump.append(char(i * 7));
    }
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/1.dmp", dump));
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/2.dmp", "second"));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "a line\r\n"));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt.1", ""));

    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QCOMPARE(ReportFolders::zipFiles().size(), 1);
    const Files expected{
        {u"1.dmp"_qs, dump},
        {u"2.dmp"_qs, "second"},
        {u"main.txt"_qs, "a line\r\n"},
        {u"main.txt.1"_qs, ""},
        {u"report.xml"_qs, reportXml("P", "", "e", "c")},
    };
    QCOMPARE(entriesOf(ReportFolders::zipFiles().constFirst()), expected);
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), QStringList());
    QCOMPARE(ReportFolders::treeOf(ReportFolders::logs()), (QStringList{u"main.txt"_qs, u"main.txt.1"_qs})); // copied
}

void tst_zipCrashReport::constructor_withoutDump_packsDescriptionAndLogs()
{
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "line"));
    QVERIFY(!CZipCrashReport::isCrashDumpCreated(plainParser));
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).keys(), (QStringList{u"main.txt"_qs, u"report.xml"_qs}));
}

void tst_zipCrashReport::constructor_archiveIsReadByOthers_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output");

    QTest::newRow("Python") << u"python3"_qs
                            << QStringList{u"-c"_qs,
                                           u"import sys, zipfile\n"
                                           "archive = zipfile.ZipFile(sys.argv[1])\n"
                                           "assert archive.testzip() is None\n"
                                           "for name in sorted(archive.namelist()):\n"
                                           "    print(name, archive.getinfo(name).compress_type)\n"_qs}
                            << u"exit code 0\na.dmp 0\nmain.txt 0\nreport.xml 0\n"_qs;
    QTest::newRow("unzip") << u"unzip"_qs << QStringList{u"-p"_qs, u"-q"_qs} << u"exit code 0\ndumpline"_qs;
}

void tst_zipCrashReport::constructor_archiveIsReadByOthers()
{
    QFETCH(const QString, program);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, output);

    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        QSKIP(qPrintable(u"There is no program "_qs + program));
    }
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "dump"));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "line"));
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QStringList all = arguments + ReportFolders::zipFiles();
    QString expected = output;
    if (program == u"unzip") {
        all += {u"a.dmp"_qs, u"main.txt"_qs, u"report.xml"_qs};
        expected += QString::fromUtf8(reportXml("P", "", "e", "c"));
    }
    QProcess process;
    process.start(path, all);
    QVERIFY(process.waitForFinished(watchdogMs));
    QCOMPARE(textOf(process, process.readAllStandardOutput()), expected);
}

void tst_zipCrashReport::constructor_logsEachCopy()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/older.txt", "line"));
    QVERIFY(QDir().mkpath(ReportFolders::logs() + u"/sub"));
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);

    const QDir from(CStorageLocation::loggerFilesPath());
    const QDir to(CStorageLocation::crashTempFilesPath());
    QStringList expected;
    for (const QString &name : {u"older.txt"_qs, u"sub"_qs, u"test.txt"_qs}) {
        expected.append(u"DEBUG ZYX_zglv6::CZipCrashReport::createCrashReport: Copy file \""_qs
                        + from.absoluteFilePath(name) + u"\" to \"" + to.absoluteFilePath(name) + u'"');
    }
    const QStringList copies = log.records().filter(u"Copy file"_qs);
    QCOMPARE(copies, expected);
}

void tst_zipCrashReport::constructor_tellsThePathOfTheDescription()
{
    const QString path = CStorageLocation::crashTempFilesPath() + QDir::separator() + u"report.xml";
    QString text;
    QDebug(&text).nospace() << path; // in quotes, as Qt writes it
    QTest::ignoreMessage(QtDebugMsg, qUtf8Printable(text)); // fails the test if it does not come
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
}

void tst_zipCrashReport::constructor_targetOfACopyExists_keepsIt()
{
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/main.txt", "of the crashed run"));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "of this run"));
    const TestSupport::AssertionReports assertions;
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).value(u"main.txt"_qs), "of the crashed run");
    QCOMPARE(ReportFolders::contentOf(ReportFolders::logs() + u"/main.txt"), "of this run");
    QCOMPARE(assertions.texts(), QStringList());
}

void tst_zipCrashReport::constructor_subfolderOfTheLogs_staysBehind()
{
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/sub/old.txt", "line"));
    const TestSupport::AssertionReports assertions;
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).keys(), QStringList{u"report.xml"_qs});
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), QStringList());
    QCOMPARE(ReportFolders::treeOf(ReportFolders::logs()), (QStringList{u"sub/"_qs, u"sub/old.txt"_qs}));
    QCOMPARE(assertions.texts(), QStringList());
}

void tst_zipCrashReport::constructor_dumpsInSubfolders_arePackedToo()
{
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/sub/a.dmp", "one"));
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/sub/deep/b.dmp", "two"));
    QVERIFY(QDir().mkpath(ReportFolders::dumps() + u"/bare"));
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const Files expected{
        {u"report.xml"_qs, reportXml("P", "", "e", "c")},
        {u"sub/a.dmp"_qs, "one"},
        {u"sub/deep/b.dmp"_qs, "two"},
    };
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)), expected);
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), (QStringList{u"bare/"_qs, u"sub/"_qs, u"sub/deep/"_qs}));
}

void tst_zipCrashReport::constructor_takesAParent()
{
    QObject parent;
    const auto *const report = new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, &parent);
    QCOMPARE(report->parent(), &parent);
    QCOMPARE(report->children(), QObjectList()); // the transport belongs to no object
}

void tst_zipCrashReport::constructor_asksNoParser()
{
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "dump"));
    const OtherParser parser(u".plcrash"_qs);
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, parser, nullptr);
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).keys(), (QStringList{u"a.dmp"_qs, u"report.xml"_qs}));
}

void tst_zipCrashReport::getZipFilePath_isTheFolder()
{
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QString path = report.getZipFilePath();
    QCOMPARE(path, QFileInfo(CStorageLocation::crashFilesPath() + QDir::separator() + u"any.zip").absolutePath());
    QCOMPARE(QDir::cleanPath(path), QDir::cleanPath(m_sandbox.filePath(u"data/CrashReports"_qs)));
    QVERIFY(QDir::isAbsolutePath(path));
    QVERIFY(!path.endsWith(u'/'));
    QVERIFY(!path.endsWith(u'\\'));
    QVERIFY(QFileInfo(path).isDir());
}

void tst_zipCrashReport::repack_replacesTheTextsAlone()
{
    const QByteArray dump = QByteArray("\0\xff dump \r\n", 10).repeated(5000);
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", dump));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "before"));
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QStringList files = ReportFolders::zipFiles();
    QCOMPARE(files.size(), 1);
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/main.txt", "after"));
    QVERIFY(ReportFolders::write(ReportFolders::logs() + u"/new.txt", "new"));

    report.repack(u"a&b@c.example"_qs, u"1 < 2\n\u00e4"_qs);
    QCOMPARE(ReportFolders::zipFiles(), files);
    const Files expected{
        {u"a.dmp"_qs, dump},
        {u"main.txt"_qs, "before"},
        {u"report.xml"_qs, reportXml("P", "", "a&b@c.example", "1 < 2\n\xc3\xa4")},
    };
    QCOMPARE(entriesOf(files.constFirst()), expected);
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), QStringList());
}

void tst_zipCrashReport::repack_later_keepsTheName()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QStringList files = ReportFolders::zipFiles();
    const QString made = QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss");
    QTRY_VERIFY(QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss") != made);
    report.repack(u"new"_qs, u"text"_qs);
    QCOMPARE(ReportFolders::zipFiles(), files);
    QCOMPARE(entriesOf(files.value(0)).value(u"report.xml"_qs), reportXml("P", "", "new", "text"));
}

void tst_zipCrashReport::repack_twice_hasTheLastTexts()
{
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "dump"));
    CZipCrashReport report(u"P"_qs, u"a rather long address"_qs, u"and comment"_qs, false, plainParser, nullptr);
    report.repack(u"first"_qs, u"first comment"_qs);
    report.repack(u""_qs, u"x"_qs);
    const Files expected{
        {u"a.dmp"_qs, "dump"},
        {u"report.xml"_qs, reportXml("P", "", "", "x")},
    };
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)), expected);
}

void tst_zipCrashReport::repack_withoutContent_packsTheDescription_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QByteArray>("archive");

    QTest::newRow("zip file removed") << false << QByteArray();
    QTest::newRow("archive without entries") << true << TestSupport::makeArchive({});
    QTest::newRow("empty file") << true << QByteArray();
    QTest::newRow("no archive") << true << QByteArray("no archive at all");
}

void tst_zipCrashReport::repack_withoutContent_packsTheDescription()
{
    QFETCH(const bool, exists);
    QFETCH(const QByteArray, archive);

    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "dump"));
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QStringList files = ReportFolders::zipFiles();
    QCOMPARE(files.size(), 1);
    QVERIFY(QFile::remove(files.constFirst()));
    if (exists) {
        QVERIFY(ReportFolders::write(files.constFirst(), archive));
    }
    report.repack(u"new"_qs, u"text"_qs);
    QCOMPARE(ReportFolders::zipFiles(), files);
    const Files expected{{u"report.xml"_qs, reportXml("P", "", "new", "text")}};
    QCOMPARE(entriesOf(files.constFirst()), expected);
}

void tst_zipCrashReport::repack_takesWhatWaitsInTheFolder()
{
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "packed"));
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "waiting"));
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/b.dmp", "new"));
    report.repack(u"e"_qs, u"c"_qs);
    const Files expected{
        {u"a.dmp"_qs, "packed"},
        {u"b.dmp"_qs, "new"},
        {u"report.xml"_qs, reportXml("P", "", "e", "c")},
    };
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)), expected);
}

void tst_zipCrashReport::repack_cannotUnpack_keepsTheZipFile()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QString file = ReportFolders::zipFiles().value(0);
    // Unpacking makes one level of folders only.
    const QString folder = m_sandbox.filePath(u"deep"_qs);
    QVERIFY(ReportFolders::write(folder + u"/one/two/a.dmp", "dump"));
    QVERIFY(CompressDir(QDir(folder), QFileInfo(file)));
    const QByteArray archive = ReportFolders::contentOf(file);
    QCOMPARE(entriesOf(file).keys(), QStringList{u"one/two/a.dmp"_qs});

    const TestSupport::AssertionReports assertions;
    report.repack(u"new"_qs, u"text"_qs);
    QCOMPARE(ReportFolders::contentOf(file), archive);
    QCOMPARE(assertions.texts().size(), 1);
    QVERIFY2(assertions.texts().constFirst().contains(u"create_directory"),
             qPrintable(assertions.texts().constFirst()));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(u"--without-data-directory"_qs)) {
        printWhatIsThrown([] { CZipCrashReport::isCrashDumpCreated(plainParser); });
        printWhatIsThrown([] { const CZipCrashReport report({}, {}, {}, false, plainParser, nullptr); });
        return 0;
    }
    tst_zipCrashReport test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_zipCrashReport.moc"

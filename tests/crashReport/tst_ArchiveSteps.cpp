// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveCrypt.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/ArchiveLibzip.h"
#include "crashReport/ArchivePrograms.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "platform/FileNames.h"
#include "utilsDll/crashReport/EntryNames_p.h"
#include "utilsDll/crashReport/UnZipMod_p.h"
#include "utilsDll/crashReport/ZipMod_p.h"
#include "utilsDll/crashReport/compress.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace TestSupport;
using namespace ZYX_zglv6;

namespace {

const QString adding = u"ZYX_zglv6::ZipMod::addToZipFile: "_qs;

} // namespace

/*! Some builds of minizip have no encryption, or one that nobody else can read where long has 64 bits. */
#define SKIP_WITHOUT(ability)                                                                                          \
    do {                                                                                                               \
        if (!(ability)()) {                                                                                            \
            QSKIP("The installed minizip fails at " #ability ".");                                                     \
        }                                                                                                              \
    } while (false)

/*! The helpers below the three operations: passwords, single entries and lists that name anything. */
class tst_ArchiveSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void entryName_isWithoutLeadingSeparators_data();
    void entryName_isWithoutLeadingSeparators();
    void isUtf8EntryName_isTrueOfOtherThanAscii();
    void leavesFolder_isTrueOfWhatMayLeadOut_data();
    void leavesFolder_isTrueOfWhatMayLeadOut();

    void addToZipFile_stripsLeadingSeparators();
    void addToZipFile_ignoresFlagAndLevel_data();
    void addToZipFile_ignoresFlagAndLevel();
    void addToZipFile_ofNothing_isAnEmptyArchive();
    void addToZipFile_endsAtAFileThatIsMissing_data();
    void addToZipFile_endsAtAFileThatIsMissing();

    void password_isNeededForTheContent_data();
    void password_isNeededForTheContent();
    void password_opensTheEntries_data();
    void password_opensTheEntries();
    void password_isThatOfOtherPrograms_data();
    void password_isThatOfOtherPrograms();
    void passwordMissingOrWrong_isAFailure_data();
    void passwordMissingOrWrong_isAFailure();

    void oneEntry_isFoundIgnoringTheCaseOfAscii_data();
    void oneEntry_isFoundIgnoringTheCaseOfAscii();
    void oneEntry_isTheFirstThatMatches();
    void oneEntry_missing_isLogged();
    void oneEntry_damaged_isFalse();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    /*! Packs all of \a files with \a password. */
    bool pack(const Files &files, const QByteArray &password) const
    {
        writeFiles(path(u"in"_qs), files);
        const QStringList names = files.keys();
        return ZipMod::addToZipFile(path(u"made.zip"_qs), false, path(u"in"_qs), {names.begin(), names.end()}, -1,
                                    password);
    }

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ArchiveSteps::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"in"_qs));
    QVERIFY(QDir(m_folder->path()).mkpath(u"out"_qs));
}

void tst_ArchiveSteps::entryName_isWithoutLeadingSeparators_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("plain") << u"a/b.txt"_qs << QByteArray("a/b.txt");
    QTest::newRow("slash") << u"/a"_qs << QByteArray("a");
    QTest::newRow("backslash") << u"\\a"_qs << QByteArray("a");
    QTest::newRow("mixed") << u"\\//\\a\\b//c"_qs << QByteArray("a\\b//c");
    QTest::newRow("closing") << u"a/\\"_qs << QByteArray("a/\\");
    QTest::newRow("nothing but separators") << u"/\\/"_qs << QByteArray("");
    QTest::newRow("empty") << QString() << QByteArray("");
    QTest::newRow("blank in front") << u" /a"_qs << QByteArray(" /a");
    QTest::newRow("narrow encoding") << u"/\u00fc"_qs << QFile::encodeName(u"\u00fc"_qs);
}

void tst_ArchiveSteps::entryName_isWithoutLeadingSeparators()
{
    QFETCH(const QString, path);
    QTEST(entryName(path), "name");
}

void tst_ArchiveSteps::isUtf8EntryName_isTrueOfOtherThanAscii()
{
    const QString umlaut = u"a\u00fc"_qs;
    const bool isUtf8 = QFile::encodeName(umlaut) == umlaut.toUtf8();
    QVERIFY(!isUtf8EntryName("a", u"a"_qs));
    QVERIFY(!isUtf8EntryName("\x7f~", u"\u007f~"_qs));
    QCOMPARE(isUtf8EntryName(QFile::encodeName(umlaut), umlaut), isUtf8);
}

void tst_ArchiveSteps::leavesFolder_isTrueOfWhatMayLeadOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("leaves");

    for (const char *name : {"..", "../a", "a/..", "a/../b", "a/../../b", "/", "/a", "//a/b", "\\a", "a\\b", "..\\a",
                             "a\\..\\b", "c:", "C:a", "c:/a", "C:\\a"}) {
        QTest::newRow(name) << QString::fromUtf8(name) << true;
    }
    for (const char *name :
         {"a", "a/b", ".", "./a", "...", "..a", "a..", "a/..b/c", "a/b../c", "a b", "a/", "a//b", ""}) {
        QTest::newRow(qPrintable(u"stays: "_qs + QString::fromUtf8(name))) << QString::fromUtf8(name) << false;
    }
    for (const char *name : {"1:a", "ab:c", "nul", "a/com1.txt"}) { // devices and streams, on Windows
        QTest::newRow(name) << QString::fromUtf8(name) << ZyxPlatform::namesDevice(u"nul"_qs);
    }
}

void tst_ArchiveSteps::leavesFolder_isTrueOfWhatMayLeadOut()
{
    QFETCH(const QString, name);
    QTEST(leavesFolder(name), "leaves");
}

void tst_ArchiveSteps::addToZipFile_stripsLeadingSeparators()
{
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"sub/b"_qs, "2"}});
    QVERIFY(
        ZipMod::addToZipFile(path(u"made.zip"_qs), false, path(u"in"_qs), {u"/a"_qs, u"//sub/b"_qs}, -1, QByteArray()));
    const ReadArchive archive = readArchive(contentOf(path(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    QCOMPARE(archive.names(), QList<QByteArray>({"a", "sub/b"}));
    QCOMPARE(archive.entries.at(1).content, QByteArray("2"));
}

void tst_ArchiveSteps::addToZipFile_ignoresFlagAndLevel_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("level");

    QTest::newRow("as the library calls it") << false << -1;
    QTest::newRow("flag") << true << -1;
    QTest::newRow("best compression") << false << 9;
    QTest::newRow("both") << true << 1;
}

void tst_ArchiveSteps::addToZipFile_ignoresFlagAndLevel()
{
    QFETCH(const bool, flag);
    QFETCH(const int, level);
    const QByteArray content(50'000, 'a');
    writeFiles(path(u"in"_qs), {{u"a"_qs, content}});
    writeFile(path(u"made.zip"_qs), makeArchive({{"older"}}));
    QVERIFY(ZipMod::addToZipFile(path(u"made.zip"_qs), flag, path(u"in"_qs), {u"a"_qs}, level, QByteArray()));
    const ReadArchive archive = readArchive(contentOf(path(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    QCOMPARE(archive.names(), QList<QByteArray>({"a"}));
    QCOMPARE(archive.entries.first().central.method, quint16(0));
    QCOMPARE(archive.entries.first().central.flags, quint16(0));
    QVERIFY(archive.entries.first().content == content);
}

void tst_ArchiveSteps::addToZipFile_ofNothing_isAnEmptyArchive()
{
    QVERIFY(ZipMod::addToZipFile(path(u"made.zip"_qs), false, path(u"in"_qs), {}, -1, QByteArray()));
    QCOMPARE(contentOf(path(u"made.zip"_qs)), makeArchive({}));
}

void tst_ArchiveSteps::addToZipFile_endsAtAFileThatIsMissing_data()
{
    QTest::addColumn<QByteArray>("password");

    QTest::newRow("no password") << QByteArray();
    QTest::newRow("password") << QByteArray("secret");
}

void tst_ArchiveSteps::addToZipFile_endsAtAFileThatIsMissing()
{
    QFETCH(const QByteArray, password);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"c"_qs, "3"}});
    const QString zip = path(u"made.zip"_qs);
    QVERIFY(ZipMod::addToZipFile(zip, false, path(u"in"_qs), {u"a"_qs, u"b"_qs, u"c"_qs}, -1, password));
    QCOMPARE(log.records(),
             QStringList({u"INFO "_qs + adding + u"Creating zip file: " + zip,
                          u"ERROR "_qs + adding + u"Error opening for reading: b"}));
    // The entry was begun, and closing the archive closed it; its file could not be found, so it has no time.
    const ReadArchive archive = readArchive(contentOf(zip));
    QVERIFY(archive.isWhole);
    QCOMPARE(archive.names(), QList<QByteArray>({"a", "b"}));
    QCOMPARE(archive.entries.at(1).central.size, 0u);
    QCOMPARE(archive.entries.at(1).central.dosTime, 0u);
    QCOMPARE(archive.entries.at(1).local.dosTime, 0u);
}

void tst_ArchiveSteps::password_isNeededForTheContent_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("size");

    QTest::newRow("ASCII") << u"secret"_qs << 16385;
    QTest::newRow("UTF-8") << u"\u00fc\u5bc6"_qs << 100;
    QTest::newRow("blanks and quotes") << u"a \"b\" 'c'"_qs << 1;
    QTest::newRow("empty file") << u"secret"_qs << 0;
    QTest::newRow("long") << QString(300, u'x') << 40'000;
}

void tst_ArchiveSteps::password_isNeededForTheContent()
{
    QFETCH(const QString, password);
    QFETCH(const int, size);
    const Files files{{u"a"_qs, bytesOf(size)}, {u"b"_qs, bytesOf(size).append("more")}};
    QVERIFY(pack(files, password.toUtf8()));

    constexpr int headerSize = 12; // of the encryption, in front of the content
    const ReadArchive archive = readArchive(contentOf(path(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    const ReadEntry &entry = archive.entries.first();
    QCOMPARE(entry.central.flags, quint16(1));
    QCOMPARE(entry.central.method, quint16(0));
    QCOMPARE(entry.central.crc, checksumOf(files.value(u"a"_qs)));
    QCOMPARE(entry.central.size, quint32(size));
    QCOMPARE(entry.central.packedSize, quint32(size + headerSize));
    QVERIFY(size == 0 || entry.content.mid(headerSize) != files.value(u"a"_qs));

    SKIP_WITHOUT(canMinizipEncrypt);
    for (const ReadEntry &each : archive.entries) {
        // also checks the sum of the whole file, of which a part goes into the header
        const QByteArray content = files.value(QString::fromUtf8(each.central.name));
        QVERIFY(decrypted(each.content, password.toUtf8(), each.central.crc) == content);
        QVERIFY(content.isEmpty() || decrypted(each.content, "other", each.central.crc) != content);
    }
}

void tst_ArchiveSteps::password_opensTheEntries_data()
{
    password_isNeededForTheContent_data();
}

void tst_ArchiveSteps::password_opensTheEntries()
{
    QFETCH(const QString, password);
    QFETCH(const int, size);
    SKIP_WITHOUT(canMinizipDecrypt);
    const Files files{{u"a"_qs, bytesOf(size)}, {u"b"_qs, bytesOf(size).append("more")}};
    writeFile(path(u"made.zip"_qs),
              makeArchive({encryptedEntry("a", files.value(u"a"_qs), password.toUtf8()),
                           encryptedEntry("b", files.value(u"b"_qs), password.toUtf8())}));
    QVERIFY(!DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"out"_qs), password));
    QVERIFY(filesBelow(path(u"out"_qs)) == files);
}

void tst_ArchiveSteps::password_isThatOfOtherPrograms_data()
{
    QTest::addColumn<QString>("program");

    QTest::newRow("unzip") << u"unzip"_qs;
    QTest::newRow("python") << u"python3"_qs;
    QTest::newRow("libzip") << u"libzip"_qs;
}

void tst_ArchiveSteps::password_isThatOfOtherPrograms()
{
    QFETCH(const QString, program);
    const bool isLibzip = program == u"libzip";
    if (isLibzip ? !hasLibzip() : !hasProgram(program)) {
        QSKIP(qPrintable(QString(u"There is no "_qs + program)));
    }
    SKIP_WITHOUT(canMinizipEncrypt);
    const Files files{{u"a"_qs, bytesOf(20'000)}, {u"b"_qs, "small"}};
    const QString password = u"secret"_qs;
    QVERIFY(pack(files, password.toUtf8()));
    const QString zip = path(u"made.zip"_qs);
    if (isLibzip) {
        const QList<LibzipEntry> entries = readByLibzip(zip, password.toUtf8());
        QCOMPARE(entries.size(), 2);
        QVERIFY(entries.at(0).content == files.value(u"a"_qs) && entries.at(1).content == files.value(u"b"_qs));
        QVERIFY(readByLibzip(zip, "other").at(0).content.isNull());
    } else if (program == u"unzip") {
        QCOMPARE(runProgram(program, {u"-q"_qs, u"-P"_qs, password, zip, u"-d"_qs, path(u"out"_qs)}).exitCode, 0);
        QVERIFY(filesBelow(path(u"out"_qs)) == files);
        QVERIFY(runProgram(program, {u"-tq"_qs, u"-P"_qs, u"other"_qs, zip}).exitCode != 0);
    } else {
        const QJsonArray entries = readByPython(zip, password).value(u"entries").toArray();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0)[u"sha256"].toString(), sha256Of(files.value(u"a"_qs)));
        QVERIFY(readByPython(zip, u"other"_qs).isEmpty());
    }
}

void tst_ArchiveSteps::passwordMissingOrWrong_isAFailure_data()
{
    QTest::addColumn<QString>("password");

    QTest::newRow("none") << QString();
    QTest::newRow("wrong") << u"Secret"_qs;
}

void tst_ArchiveSteps::passwordMissingOrWrong_isAFailure()
{
    QFETCH(const QString, password);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QByteArray content = bytesOf(1000);
    writeFile(path(u"made.zip"_qs),
              makeArchive({encryptedEntry("a", content, "secret"), encryptedEntry("b", content, "secret")}));
    QVERIFY(!DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"out"_qs), password));
    // Without a password, or with another, nothing tells but the sum at the end.
    const QString line = u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractCurrentFile: Error with zipfile in "_qs;
    QStringList expected{QString(line + u"unzCloseCurrentFile: ")};
    if (!password.isEmpty() && !canMinizipDecrypt()) {
        expected.prepend(line + u"unzOpenCurrentFilePassword: ");
    }
    QCOMPARE(log.records(), expected);
    QVERIFY(contentOf(path(u"out/a"_qs)) != content);
    QVERIFY(!QFileInfo::exists(path(u"out/b"_qs)));
}

void tst_ArchiveSteps::oneEntry_isFoundIgnoringTheCaseOfAscii_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("extracted");

    QTest::newRow("as it is") << u"sub/Name.TXT"_qs << u"sub/Name.TXT"_qs;
    QTest::newRow("other case") << u"SUB/nAME.txt"_qs << u"sub/Name.TXT"_qs;
    QTest::newRow("first") << u"first"_qs << u"first"_qs;
    QTest::newRow("last") << u"LAST_["_qs << u"last_["_qs;
    QTest::newRow("another sign a case away") << u"last_{"_qs << QString();
    QTest::newRow("beginning of a name") << u"firs"_qs << QString();
    QTest::newRow("name goes on") << u"first1"_qs << QString();
    QTest::newRow("without the folder") << u"Name.TXT"_qs << QString();
    QTest::newRow("backslash") << u"sub\\Name.TXT"_qs << QString();
    QTest::newRow("letter beyond ASCII") << u"\u00fc"_qs << u"\u00fc"_qs;
    QTest::newRow("other case beyond ASCII") << u"\u00dc"_qs << QString();
    QTest::newRow("pattern") << u"*"_qs << QString();
}

void tst_ArchiveSteps::oneEntry_isFoundIgnoringTheCaseOfAscii()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, extracted);
    writeFile(path(u"made.zip"_qs),
              makeArchive({{"first", "1"},
                           {"sub/Name.TXT", "2"},
                           {QFile::encodeName(u"\u00fc"_qs), "3"},
                           {QByteArray(300, 'x'), "4"},
                           {"last_[", "5"}}));
    QCOMPARE(UnZipMod::extractZipArchive(path(u"out"_qs), path(u"made.zip"_qs), wanted, QByteArray()),
             !extracted.isEmpty());
    QCOMPARE(filesBelow(path(u"out"_qs)).keys(), extracted.isEmpty() ? QStringList() : QStringList(extracted));
}

void tst_ArchiveSteps::oneEntry_isTheFirstThatMatches()
{
    writeFile(path(u"made.zip"_qs), makeArchive({{"x"}, {"Name", "1"}, {"name", "2"}, {"name", "3"}}));
    QVERIFY(UnZipMod::extractZipArchive(path(u"out"_qs), path(u"made.zip"_qs), u"name"_qs, QByteArray()));
    QVERIFY(filesBelow(path(u"out"_qs)) == Files({{u"Name"_qs, "1"}}));
}

void tst_ArchiveSteps::oneEntry_missing_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFile(path(u"made.zip"_qs), makeArchive({{"a"}}));
    QVERIFY(!UnZipMod::extractZipArchive(path(u"out"_qs), path(u"made.zip"_qs), u"B"_qs, QByteArray()));
    writeFile(path(u"empty.zip"_qs), "#!" + makeArchive({})); // minizip finds no end at position 0
    QVERIFY(!UnZipMod::extractZipArchive(path(u"out"_qs), path(u"empty.zip"_qs), u"B"_qs, QByteArray()));
    const QString line = u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractOneFile: "
                         u"File not found in the zip archive: B"_qs;
    QCOMPARE(log.records(), QStringList({line, line}));
    QVERIFY(filesBelow(path(u"out"_qs)).isEmpty());
}

void tst_ArchiveSteps::oneEntry_damaged_isFalse()
{
    MadeEntry damaged{"a", "content"};
    damaged.crc = 1;
    writeFile(path(u"made.zip"_qs), makeArchive({{"b"}, damaged}));
    QVERIFY(!UnZipMod::extractZipArchive(path(u"out"_qs), path(u"made.zip"_qs), u"a"_qs, QByteArray()));
    QVERIFY(UnZipMod::extractZipArchive(path(u"out"_qs), path(u"made.zip"_qs), u"b"_qs, QByteArray()));
}

QTEST_GUILESS_MAIN(tst_ArchiveSteps)
#include "tst_ArchiveSteps.moc"

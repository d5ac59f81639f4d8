// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/LicensesPage_p.h"

#include "aboutDlg/AboutBox.h"
#include "support/FreshProcess.h"
#include "support/TestLog.h"

#include "platform/Registry.h"

#include <QtCore/QDate>
#include <QtCore/QTemporaryDir>

using namespace ZYX_zglv6;
using AboutBox::write;

namespace {

constexpr qint64 largestFile = qint64(2) * 1024 * 1024;
constexpr qsizetype longestPage = qsizetype(4) * 1024 * 1024;

const QString blanks = QStringLiteral("Copyright [yyyy] [name of copyright owner], [yyyy]");

QString filledBlanks()
{
    const int year = QDate::currentDate().year();
    return u"Copyright %1 Contributors to log4cplus project, %1<br>"_qs.arg(year);
}

QString readAt(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? readLicenseFile(&file) : u"not opened"_qs;
}

bool isUnreadable(const QString &path)
{
    return QFileInfo(path).isFile() && !QFile(path).open(QIODevice::ReadOnly);
}

/*! False if this user may read all files. */
bool makeUnreadable(const QString &path)
{
    if (write(path, "unreadable") && QFile::setPermissions(path, {}) && isUnreadable(path)) {
        return true;
    }
    const QString toBeWrittenAlone = u"/proc/sys/vm/compact_memory"_qs; // holds for administrators, too
    return QFile::remove(path) && QFile::link(toBeWrittenAlone, path) && isUnreadable(path);
}

} // namespace

class tst_LicensesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readLicenseFile_endsLinesByMarks_data();
    void readLicenseFile_endsLinesByMarks();
    void readLicenseFile_ofNothing_isEmpty();
    void readLicenseFile_ofALogLibrary_fillsTheBlanks_data();
    void readLicenseFile_ofALogLibrary_fillsTheBlanks();

    void readLicenseFiles_takesTextFilesOfTheFolderAlone();
    void readLicenseFiles_withoutFolder_isEmpty();
    void readLicenseFiles_skipsSilentlyWhatCannotBeOpened();
    void readLicenseFiles_skipsDevices();
    void readLicenseFiles_ofALargeFile_skipsItWithALogLine_data();
    void readLicenseFiles_ofALargeFile_skipsItWithALogLine();
    void readLicenseFiles_beyondThePage_skipsWithALogLine();

    void createLicensesPage_isWholePage_data();
    void createLicensesPage_isWholePage();

    void licensesDir_isInTheConnectorsFolder_data();
    void licensesDir_isInTheConnectorsFolder();
    void licensesDir_untold_isAskedForAgain();
    void licensesDir_onceTold_stays();
    void machineStore_isTheProductsOwnKey();

private:
    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
};

void tst_LicensesPage::readLicenseFile_endsLinesByMarks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("one line") << QByteArray("one\n") << u"one<br>"_qs;
    QTest::newRow("no end of line") << QByteArray("one") << u"one<br>"_qs;
    QTest::newRow("empty lines") << QByteArray("\n\none\n\n") << u"<br><br>one<br><br>"_qs;
    QTest::newRow("Windows lines") << QByteArray("one\r\ntwo\r\n") << u"one<br>two<br>"_qs;
    QTest::newRow("marks stay") << QByteArray("<b>&lt;</b>\n<a@b.test>\n") << u"<b>&lt;</b><br><a@b.test><br>"_qs;
    QTest::newRow("UTF-8") << QByteArray("\xc2\xa9 \xe6\x9c\xac\n") << u"\u00a9 \u672c<br>"_qs;
    QTest::newRow("UTF-8 with mark") << QByteArray("\xef\xbb\xbfone\n") << u"one<br>"_qs;
    QTest::newRow("broken UTF-8") << QByteArray("a\xff\n") << u"a\ufffd<br>"_qs;
    QTest::newRow("blanks of another file") << blanks.toUtf8() << blanks + u"<br>"_qs;
}

void tst_LicensesPage::readLicenseFile_endsLinesByMarks()
{
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.txt"_qs);
    QVERIFY(write(path, bytes));
    QTEST(readAt(path), "text");
}

void tst_LicensesPage::readLicenseFile_ofNothing_isEmpty()
{
    QCOMPARE(readLicenseFile(nullptr), QString());
    QFile closed(m_sandbox.filePath(u"missing.txt"_qs));
    QCOMPARE(readLicenseFile(&closed), QString());
}

void tst_LicensesPage::readLicenseFile_ofALogLibrary_fillsTheBlanks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFilled");

    QTest::newRow("plain") << u"log4Cplus license.txt"_qs << true;
    QTest::newRow("lower case") << u"log4cplus license.txt"_qs << true;
    QTest::newRow("upper case") << u"LOG4CPLUS LICENSE.TXT"_qs << true;
    QTest::newRow("longer name") << u"our log4Cplus license.txt"_qs << true;
    QTest::newRow("another ending") << u"log4Cplus license.txt.txt"_qs << false;
    QTest::newRow("another name") << u"log4Cplus-license.txt"_qs << false;
}

void tst_LicensesPage::readLicenseFile_ofALogLibrary_fillsTheBlanks()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isFilled);
    const QTemporaryDir folder;
    QVERIFY(write(folder.filePath(name), blanks.toUtf8()));
    QCOMPARE(readAt(folder.filePath(name)), isFilled ? filledBlanks() : blanks + u"<br>"_qs);
    QCOMPARE(readLicenseFiles(folder.path()).size(), 1);
}

void tst_LicensesPage::readLicenseFiles_takesTextFilesOfTheFolderAlone()
{
    const QTemporaryDir folder;
    QVERIFY(write(folder.filePath(u"a.txt"_qs), "a"));
    QVERIFY(write(folder.filePath(u"B.TXT"_qs), "b"));
    QVERIFY(write(folder.filePath(u"empty.txt"_qs), ""));
    QVERIFY(write(folder.filePath(u"c.html"_qs), "c"));
    QVERIFY(write(folder.filePath(u"below/d.txt"_qs), "d"));
    QVERIFY(write(folder.filePath(u"folder.txt/e"_qs), "e"));
    QStringList texts = readLicenseFiles(folder.path());
    texts.sort();
    QCOMPARE(texts, (QStringList{u"a<br>"_qs, u"b<br>"_qs}));
}

void tst_LicensesPage::readLicenseFiles_withoutFolder_isEmpty()
{
    QCOMPARE(readLicenseFiles(m_sandbox.filePath(u"missing"_qs)), QStringList());
}

void tst_LicensesPage::readLicenseFiles_skipsSilentlyWhatCannotBeOpened()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QTemporaryDir folder;
    if (!makeUnreadable(folder.filePath(u"a.txt"_qs))) {
        QSKIP("This user may read all files.");
    }
    QVERIFY(write(folder.filePath(u"b.txt"_qs), "b"));
    QCOMPARE(readLicenseFiles(folder.path()), QStringList{u"b<br>"_qs});
    QCOMPARE(log.records(), QStringList());
}

void tst_LicensesPage::readLicenseFiles_skipsDevices()
{
    const QString endless = u"/dev/zero"_qs;
    if (!QFileInfo::exists(endless)) {
        QSKIP("There are no devices among the files here.");
    }
    const QTemporaryDir folder;
    QVERIFY(QFile::link(endless, folder.filePath(u"a.txt"_qs)));
    QVERIFY(write(folder.filePath(u"b.txt"_qs), "b"));
    QCOMPARE(readLicenseFiles(folder.path()), QStringList{u"b<br>"_qs});
}

void tst_LicensesPage::readLicenseFiles_ofALargeFile_skipsItWithALogLine_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isRead");

    QTest::newRow("largest") << largestFile << true;
    QTest::newRow("too large") << largestFile + 1 << false;
    QTest::newRow("100 MB") << qint64(100) * 1024 * 1024 << false;
}

void tst_LicensesPage::readLicenseFiles_ofALargeFile_skipsItWithALogLine()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const qint64, size);
    QFETCH(const bool, isRead);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"large.txt"_qs);
    QVERIFY(write(path, ""));
    QVERIFY(QFile::resize(path, size));
    QVERIFY(write(folder.filePath(u"small.txt"_qs), "small"));

    const QStringList texts = readLicenseFiles(folder.path());
    QCOMPARE(texts.size(), isRead ? 2 : 1);
    QVERIFY(texts.contains(u"small<br>"_qs));
    const QString skipped = u"skipped \"%1\": %2 bytes are too many for a license"_qs.arg(path).arg(size);
    const QStringList records = log.records();
    QCOMPARE(records.size(), isRead ? 0 : 1);
    QVERIFY(isRead || (records.front().startsWith(u"WARN ") && records.front().endsWith(skipped)));
}

void tst_LicensesPage::readLicenseFiles_beyondThePage_skipsWithALogLine()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QTemporaryDir folder;
    constexpr qsizetype markedLine = 5; // "x<br>"
    const QByteArray lines = QByteArray("x\n").repeated(longestPage * 2 / 5 / markedLine);
    for (const char *name : {"a.txt", "b.txt", "c.txt"}) {
        QVERIFY(write(folder.filePath(QString::fromUtf8(name)), lines));
    }
    QVERIFY(write(folder.filePath(u"small.txt"_qs), "small"));
    const QStringList texts = readLicenseFiles(folder.path());
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts.contains(u"small<br>"_qs)); // after the one that was too much
    QVERIFY(texts.join(QString()).size() <= longestPage);
    QCOMPARE(log.records().size(), 1);
    QVERIFY(log.records().front().startsWith(u"WARN "));
    QVERIFY(log.records().front().endsWith(u"the page of licenses is full"));
}

void tst_LicensesPage::createLicensesPage_isWholePage_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("joined");

    const QString line = u"<br>******************************************************<br><br>"_qs;
    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("one") << QStringList{u"a<br>"_qs} << u"a<br>"_qs;
    QTest::newRow("three") << QStringList{u"a"_qs, u"%1"_qs, u"c"_qs} << u"a"_qs + line + u"%1"_qs + line + u"c"_qs;
}

void tst_LicensesPage::createLicensesPage_isWholePage()
{
    QFETCH(const QStringList, texts);
    QFETCH(const QString, joined);
    const QString head
        = u"<html><head><title></title><meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\">"
          "<style type=\"text/css\">"
          "body { scrollbar-face-color: #5c5c5c; scrollbar-shadow-color: #3c3c3c; scrollbar-highlight-color: #6c6c6c;"
          " scrollbar-3dlight-color: #5c5c5c; scrollbar-darkshadow-color: #3c3c3c; scrollbar-track-color: #3c3c3c;"
          " scrollbar-arrow-color: #2c2c2c; }"
          "* { font-family: 'Roboto Light', arial, verdana, sans-serif; color: #999999; font-size: 13px; }"
          "a { color: #a33f12; text-decoration: underline; font-size: 13px; }"
          "a:hover { text-decoration: none; }"
          "p { margin: 0 6px; }"
          "span { color: #999999; }"
          "</style></head><body><div><p><hr></p>"_qs;
    const QString line = u"<br>******************************************************<br><br>"_qs;
    QCOMPARE(createLicensesPage(u"first%1second%1"_qs, texts),
             head + u"first"_qs + line + u"second"_qs + line + joined + u"</div></body></html>"_qs);
}

void tst_LicensesPage::licensesDir_isInTheConnectorsFolder_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("dir");

    QTest::newRow("plain") << u"/opt/zyx"_qs << u"/opt/zyx/Licenses"_qs;
    QTest::newRow("separator at the end") << u"/opt/zyx/"_qs << u"/opt/zyx/Licenses"_qs;
    QTest::newRow("to be cleaned") << u"/opt//a/../zyx/."_qs << u"/opt/zyx/Licenses"_qs;
    QTest::newRow("blank and comma") << u"/opt/Zyx Labs, 6"_qs << u"/opt/Zyx Labs, 6/Licenses"_qs;
    QTest::newRow("empty") << QString() << QString();
}

void tst_LicensesPage::licensesDir_isInTheConnectorsFolder()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, value);
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, value);
    QTEST(get3rdPartyLicensesDir(), "dir");
}

void tst_LicensesPage::licensesDir_untold_isAskedForAgain()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(get3rdPartyLicensesDir(), QString());
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/opt/zyx"_qs);
    QCOMPARE(get3rdPartyLicensesDir(), u"/opt/zyx/Licenses"_qs);
}

void tst_LicensesPage::licensesDir_onceTold_stays()
{
    RUN_IN_FRESH_PROCESS();
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/opt/zyx"_qs);
    QCOMPARE(get3rdPartyLicensesDir(), u"/opt/zyx/Licenses"_qs);
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/opt/other"_qs);
    QCOMPARE(get3rdPartyLicensesDir(), u"/opt/zyx/Licenses"_qs);
}

void tst_LicensesPage::machineStore_isTheProductsOwnKey()
{
    RUN_IN_FRESH_PROCESS();
    QSettings(u"Zyx Labs"_qs, u"Zyx Grainlab 6"_qs).setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/home/user"_qs);
    QSettings(QSettings::SystemScope, u"Zyx Labs"_qs).setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/opt/organization"_qs);
    const auto store = ZyxPlatform::openMachineStore(u"Zyx Labs"_qs, u"Zyx Grainlab 6"_qs);
    QVERIFY(store->value(u"ZyxPSQtPlugInDllDir"_qs).isNull());
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, u"/opt/zyx"_qs);
    store->sync();
    QCOMPARE(store->value(u"ZyxPSQtPlugInDllDir"_qs).toString(), u"/opt/zyx"_qs);
}

QTEST_MAIN(tst_LicensesPage)

#include "tst_LicensesPage.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <atomic>
#include <memory>
#include <vector>

using namespace ZYX_zglv6;

namespace {

const QStringList reservedNames{
    u"CON"_qs,  u"PRN"_qs,  u"AUX"_qs,  u"NUL"_qs,  u"COM1"_qs, u"COM2"_qs, u"COM3"_qs, u"COM4"_qs,
    u"COM5"_qs, u"COM6"_qs, u"COM7"_qs, u"COM8"_qs, u"COM9"_qs, u"LPT1"_qs, u"LPT2"_qs, u"LPT3"_qs,
    u"LPT4"_qs, u"LPT5"_qs, u"LPT6"_qs, u"LPT7"_qs, u"LPT8"_qs, u"LPT9"_qs,
};

/*! A path of parts of 255 characters. */
QString pathOfLength(qsizetype length)
{
    QString path(length, u'a');
    for (qsizetype place = 255; place < length; place += 256) {
        path[place] = u'/';
    }
    return path;
}

QString named(qsizetype length)
{
    return QString(length, u'n');
}

void addColumns()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isGoodPath");
    QTest::addColumn<bool>("isGoodName");
}

void addRow(const char *row, const QString &name, bool isGoodPath, bool isGoodName)
{
    QTest::newRow(row) << name << isGoodPath << isGoodName;
}

void compareFetched()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isGoodPath);
    QFETCH(const bool, isGoodName);
    QCOMPARE(validateFileName(name, true), isGoodPath);
    QCOMPARE(validateFileName(name, false), isGoodName);
}

/*! Number of wrong answers. */
int wrongAnswersOf(int rounds)
{
    int wrong = 0;
    for (int round = 0; round < rounds; ++round) {
        for (const QString &name : reservedNames) {
            wrong += validateFileName(name, false) ? 1 : 0;
            wrong += validateFileName(u"a/"_qs + name, true) ? 1 : 0;
            wrong += validateFileName(u"a/"_qs + name + u"/b", true) ? 0 : 1;
            wrong += validateFileName(name + u".txt", false) ? 0 : 1;
        }
    }
    return wrong;
}

} // namespace

class tst_ValidateFileName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reservedName_alone_isWrong_data();
    void reservedName_alone_isWrong();
    void reservedName_withExtension_isRight_data();
    void reservedName_withExtension_isRight();
    void reservedName_inAPath_countsAtTheEndOnly_data();
    void reservedName_inAPath_countsAtTheEndOnly();
    void likeAReservedName_data();
    void likeAReservedName();
    void length_data();
    void length();
    void character_isForbiddenByTable_data();
    void character_isForbiddenByTable();
    void character_aloneOrAtAnEnd_isForbidden_data();
    void character_aloneOrAtAnEnd_isForbidden();
    void cleanedFirst_data();
    void cleanedFirst();
    void otherLetters_data();
    void otherLetters();
    void manyThreadsAtOnce_getTheSameAnswers();
};

void tst_ValidateFileName::reservedName_alone_isWrong_data()
{
    addColumns();
    for (const QString &name : reservedNames) {
        const QString lower = name.toLower();
        const QString mixed = name.at(0) + lower.mid(1);
        for (const QString &form : {name, lower, mixed}) {
            addRow(qPrintable(form), form, false, false);
        }
    }
}

void tst_ValidateFileName::reservedName_alone_isWrong()
{
    compareFetched();
}

void tst_ValidateFileName::reservedName_withExtension_isRight_data()
{
    addColumns();
    for (const QString &name : reservedNames) {
        for (const QString &form : {QString(name + u".txt"), QString(name.toLower() + u".txt"), QString(name + u".")}) {
            addRow(qPrintable(form), form, true, true);
        }
    }
}

void tst_ValidateFileName::reservedName_withExtension_isRight()
{
    compareFetched();
}

void tst_ValidateFileName::reservedName_inAPath_countsAtTheEndOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isGood");

    for (const QString &upper : reservedNames) {
        for (const QString &name : {upper, upper.toLower()}) {
            for (const QString &folder : {u"/tmp/"_qs, u"C:\\temp\\"_qs, u"a/"_qs, u"a\\"_qs, u"/"_qs, u"\\"_qs}) {
                const QString atEnd = folder + name;
                QTest::newRow(qPrintable(atEnd)) << atEnd << false;
                QTest::newRow(qPrintable(QString(atEnd + u'/'))) << QString(atEnd + u'/') << false;
                QTest::newRow(qPrintable(QString(atEnd + u"/a.txt"))) << QString(atEnd + u"/a.txt") << true;
                QTest::newRow(qPrintable(QString(atEnd + u"\\a.txt"))) << QString(atEnd + u"\\a.txt") << true;
                QTest::newRow(qPrintable(QString(atEnd + u".txt"))) << QString(atEnd + u".txt") << true;
            }
            const QString asFirst = name + u"/a";
            QTest::newRow(qPrintable(asFirst)) << asFirst << true;
        }
    }
}

void tst_ValidateFileName::reservedName_inAPath_countsAtTheEndOnly()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isGood);
    QCOMPARE(validateFileName(name, true), isGood);
    QCOMPARE(validateFileName(name, false), false); // for its separators
}

void tst_ValidateFileName::likeAReservedName_data()
{
    addColumns();
    for (const char *name : {"COM", "COM0", "COM10", "COM1 ", "LPT", "LPT0", "LPT10", "CONS", "ACON", " CON", "NULL",
                             "NU", "AU", "PR", "C", "CON|PRN"}) {
        const bool hasBar = QByteArrayView(name).contains('|');
        addRow(name, QString::fromUtf8(name), !hasBar, !hasBar);
    }
    addRow("COM and a raised 1", u"COM\u00b9"_qs, true, true);
    addRow("a line break before it", u"a\nCON"_qs, true, true);
    addRow("a line break in the folder", u"a\n/CON"_qs, false, false);
    addRow("behind a drive only", u"C:NUL"_qs, true, false);
    addRow("NUL:", u"NUL:"_qs, true, false);
}

void tst_ValidateFileName::likeAReservedName()
{
    compareFetched();
}

void tst_ValidateFileName::length_data()
{
    addColumns();
    addRow("none", QString(), false, false);
    addRow("empty", u""_qs, false, false);
    addRow("1", named(1), true, true);
    addRow("260", named(260), true, true);
    addRow("261", named(261), false, false);
    addRow("260, with extension", named(256) + u".tif", true, true);
    addRow("261, with extension", named(257) + u".tif", false, false);
    addRow("260 and 260", named(260) + u'/' + named(260), true, false);
    addRow("261 first", named(261) + u"/b", false, false);
    addRow("261 in the middle", u"a/"_qs + named(261) + u"/b", false, false);
    addRow("261 at the end", u"/a/"_qs + named(261), false, false);
    addRow("260 behind a root", u"/"_qs + named(260), true, false);
    addRow("32766", pathOfLength(32766), true, false);
    addRow("32767", pathOfLength(32767), false, false);
    addRow("32768 and more", pathOfLength(40000), false, false);
    addRow("32766 when cleaned", u"./"_qs + pathOfLength(32766) + u'/', true, false);
    addRow("32767 when cleaned", u"./"_qs + pathOfLength(32767), false, false);
    addRow("a million", named(1'000'000), false, false);
}

void tst_ValidateFileName::length()
{
    compareFetched();
}

void tst_ValidateFileName::character_isForbiddenByTable_data()
{
    QTest::addColumn<char>("character");
    for (int code = 1; code < 128; ++code) {
        QTest::addRow("code %d", code) << char(code);
    }
}

void tst_ValidateFileName::character_isForbiddenByTable()
{
    QFETCH(const char, character);
    const QString name = u"a"_qs + QLatin1Char(character) + u"b";
    QCOMPARE(validateFileName(name, true), !QByteArray("<>\"|?*").contains(character));
    QCOMPARE(validateFileName(name, false), !QByteArray("<>\"|?*:/\\").contains(character));
}

void tst_ValidateFileName::character_aloneOrAtAnEnd_isForbidden_data()
{
    QTest::addColumn<char>("character");
    for (const char character : QByteArray("<>\"|?*:")) {
        QTest::addRow("%c", character) << character;
    }
}

void tst_ValidateFileName::character_aloneOrAtAnEnd_isForbidden()
{
    QFETCH(const char, character);
    const QLatin1Char sign(character);
    const bool isGoodPath = character == ':';
    for (const QString &name : {QString(sign), QString(u"a"_qs + sign), QString(sign + u"a"_qs)}) {
        QCOMPARE(validateFileName(name, true), isGoodPath);
        QCOMPARE(validateFileName(name, false), false);
    }
    QCOMPARE(validateFileName(u"C:/a"_qs + sign + u"/b", true), isGoodPath);
}

void tst_ValidateFileName::cleanedFirst_data()
{
    addColumns();
    addRow("..", u".."_qs, false, false);
    addRow("...", u"..."_qs, false, false);
    addRow("a..b", u"a..b"_qs, false, false);
    addRow("..a", u"..a"_qs, false, false);
    addRow("a..", u"a.."_qs, false, false);
    addRow("../a", u"../a"_qs, false, false);
    addRow("a/../../b", u"a/../../b"_qs, false, false);
    addRow("a/..b/c", u"a/..b/c"_qs, false, false);
    addRow("a.b.c", u"a.b.c"_qs, true, true);
    addRow(".", u"."_qs, true, true);
    addRow("a/..", u"a/.."_qs, true, true); // is "."
    addRow("a/../b", u"a/../b"_qs, true, true);
    addRow("./a", u"./a"_qs, true, true);
    addRow("a/", u"a/"_qs, true, true);
    addRow("a//b", u"a//b"_qs, true, false);
    addRow("a/./b", u"a/./b"_qs, true, false);
    addRow("/", u"/"_qs, true, false);
    addRow("/a", u"/a"_qs, true, false);
    addRow("NUL/", u"NUL/"_qs, false, false);
    addRow("./nul", u"./nul"_qs, false, false);
    addRow("a/../CON", u"a/../CON"_qs, false, false);
    addRow("a//CON", u"a//CON"_qs, false, false);
    addRow("what is cleaned away", u"a?/../b"_qs, true, true);
}

void tst_ValidateFileName::cleanedFirst()
{
    compareFetched();
}

void tst_ValidateFileName::otherLetters_data()
{
    addColumns();
    addRow("umlauts", u"\u00dcber \u00e4\u00f6\u00df.tif"_qs, true, true);
    addRow("Japanese", u"\u5199\u771f\uff0f\u65e5\u672c.tif"_qs, true, true); // with a wide slash, which is none
    addRow("emoji", u"\U0001F39E.tif"_qs, true, true);
    addRow("260 as 130 emoji", u"\U0001F39E"_qs.repeated(130), true, true);
    addRow("262 as 131 emoji", u"\U0001F39E"_qs.repeated(131), false, false);
    addRow("260 umlauts", u"\u00fc"_qs.repeated(260), true, true);
    addRow("261 umlauts", u"\u00fc"_qs.repeated(261), false, false);
    addRow("blanks", u" a b "_qs, true, true);
    addRow("one blank", u" "_qs, true, true);
}

void tst_ValidateFileName::otherLetters()
{
    compareFetched();
}

void tst_ValidateFileName::manyThreadsAtOnce_getTheSameAnswers()
{
    RUN_IN_FRESH_PROCESS(); // so that they meet in the first use, too
    constexpr int threadCount = 8;
    QSemaphore start; // a std::latch sometimes loses a thread with MinGW
    std::atomic_int wrongAnswers = 0;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads
            .emplace_back(QThread::create([&] {
                start.acquire();
                wrongAnswers += wrongAnswersOf(200);
            }))
            ->start();
    }
    start.release(threadCount);
    for (const std::unique_ptr<QThread> &thread : threads) {
        QVERIFY(thread->wait());
    }
    QCOMPARE(wrongAnswers.load(), 0);
}

QTEST_GUILESS_MAIN(tst_ValidateFileName)
#include "tst_ValidateFileName.moc"

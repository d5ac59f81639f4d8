// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

using namespace ZYX_zglv6;
using namespace ZYX_zglv6::FileManagement;

class tst_ComparedNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_areFixed();
    void normalizedFilePath_data();
    void normalizedFilePath();
    void isEqualFileOrDirNames_data();
    void isEqualFileOrDirNames();
};

void tst_ComparedNames::values_areFixed()
{
    QCOMPARE(int(CompareFullPath), 0);
    QCOMPARE(int(CompareFileName), 1);
    QCOMPARE(int(CompareBaseName), 2);
}

void tst_ComparedNames::normalizedFilePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("key"); // with '/' as separator

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("letters and folders") << u"C:/Temp/A.TIF"_qs << u"c:/temp/a.tif"_qs;
    QTest::newRow("not cleaned") << u"./A/../B//"_qs << u"./a/../b//"_qs;
    QTest::newRow("umlauts, Greek, Cyrillic") << u"\u00dcB/\u03a9/\u0424"_qs << u"\u00fcb/\u03c9/\u0444"_qs;
    QTest::newRow("Japanese, emoji, blank") << u"\u5199 \U0001F39E/X"_qs << u"\u5199 \U0001F39E/x"_qs;
}

void tst_ComparedNames::normalizedFilePath()
{
    QFETCH(const QString, path);
    QFETCH(QString, key);
    QCOMPARE(ZYX_zglv6::normalizedFilePath(path), key.replace(u'/', QDir::separator()));
}

void tst_ComparedNames::isEqualFileOrDirNames_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("isSamePath");
    QTest::addColumn<bool>("isSameName");
    QTest::addColumn<bool>("isSameBase");
    const auto add = [](const char *row, const QString &a, const QString &b, bool path, bool name, bool base) {
        QTest::newRow(row) << a << b << path << name << base;
    };
    add("case", u"A.TIF"_qs, u"a.tif"_qs, true, true, true);
    add("case of folders", u"/X/Y/a.tif"_qs, u"/x/y/a.tif"_qs, true, true, true);
    add("other folder", u"/x/a.tif"_qs, u"/y/a.tif"_qs, false, true, true);
    add("other extension", u"/x/a.tif"_qs, u"/x/a.jpg"_qs, false, false, true);
    add("other base", u"/x/a.tif"_qs, u"/x/b.tif"_qs, false, false, false);
    add("all but the last extension is base", u"a.b.tif"_qs, u"A.B.jpg"_qs, false, false, true);
    add("not the first name only", u"a.b.tif"_qs, u"a.tif"_qs, false, false, false);
    add("no extension", u"x/a.tif"_qs, u"z/a"_qs, false, false, true);
    add("leading dot is an extension", u".one"_qs, u".two"_qs, false, false, true);
    add("dot folder", u"/x/./a"_qs, u"/x/a"_qs, true, true, true);
    add("folder and back", u"/x/y/../a"_qs, u"/x/a"_qs, true, true, true);
    add("two separators", u"/x//a"_qs, u"/x/a"_qs, true, true, true);
    add("separator at the end", u"/x/a/"_qs, u"/x/a"_qs, true, false, false);
    add("relative and leading dot", u"./a"_qs, u"a"_qs, true, true, true);
    add("relative and absolute", u"a"_qs, QDir::current().absoluteFilePath(u"a"_qs), false, true, true);
    add("umlauts", u"/x/\u00dc.tif"_qs, u"/x/\u00fc.TIF"_qs, true, true, true);
    add("emoji", u"\U0001F39E.A"_qs, u"\U0001F39E.a"_qs, true, true, true);
    add("both empty", QString(), QString(), true, true, true);
    add("one empty", QString(), u"a"_qs, false, false, false);
}

void tst_ComparedNames::isEqualFileOrDirNames()
{
    QFETCH(const QString, a);
    QFETCH(const QString, b);
    QFETCH(const bool, isSamePath);
    QFETCH(const bool, isSameName);
    QFETCH(const bool, isSameBase);
    const auto compare = [&](CompareCondition condition, bool expected) {
        const bool ofTexts = ZYX_zglv6::isEqualFileOrDirNames(a, b, condition);
        const bool turned = ZYX_zglv6::isEqualFileOrDirNames(b, a, condition);
        const bool ofInfos = ZYX_zglv6::isEqualFileOrDirNames(QFileInfo(a), QFileInfo(b), condition);
        return ofTexts == expected && turned == expected && ofInfos == expected;
    };
    QVERIFY(compare(CompareFullPath, isSamePath));
    QVERIFY(compare(CompareFileName, isSameName));
    QVERIFY(compare(CompareBaseName, isSameBase));
    QVERIFY(compare(CompareCondition(3), true)); // no name of the table: compares nothing
}

QTEST_GUILESS_MAIN(tst_ComparedNames)
#include "tst_ComparedNames.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PictureName.h"

#include <QtTest/QTest>

/*! The names of the gallery's pictures. */
class tst_PictureName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureNameOf_readsTheParts_data();
    void pictureNameOf_readsTheParts();
    void pictureNameOf_anotherForm_isNone_data();
    void pictureNameOf_anotherForm_isNone();
};

void tst_PictureName::pictureNameOf_readsTheParts_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("parts"); // language, ratio, direction, exhibit
    QTest::addColumn<bool>("isExhibit"); // whose name is made from the parts again

    QTest::newRow("box") << u"de-1-ltr-box-critical-ok.png"_qs
                         << QStringList{u"de"_qs, u"1"_qs, u"ltr"_qs, u"box-critical-ok"_qs} << true;
    QTest::newRow("country, fraction, right to left")
        << u"zh_CN-1.5-rtl-overlay-progress-1.png"_qs
        << QStringList{u"zh_CN"_qs, u"1.5"_qs, u"rtl"_qs, u"overlay-progress-1"_qs} << true;
    QTest::newRow("sheet") << u"en-01-custom.png"_qs << QStringList{u"en"_qs, u"1"_qs, u"ltr"_qs, u"sheet-custom"_qs}
                           << false;
    QTest::newRow("sheet of a language") << u"zh_CN-12-extra-zh_CN.png"_qs
                                         << QStringList{u"zh_CN"_qs, u"1"_qs, u"ltr"_qs, u"sheet-extra-zh_CN"_qs}
                                         << false;
}

void tst_PictureName::pictureNameOf_readsTheParts()
{
    QFETCH(const QString, fileName);
    QFETCH(const QStringList, parts);
    QFETCH(const bool, isExhibit);

    const std::optional<PictureName> name = pictureNameOf(fileName);
    QVERIFY(name.has_value());
    QCOMPARE((QStringList{name->language, name->ratio, name->direction, name->exhibit}), parts);
    QCOMPARE(name->fileName() == fileName, isExhibit);
}

void tst_PictureName::pictureNameOf_anotherForm_isNone_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("nothing") << QString();
    QTest::newRow("no direction") << u"de-1-box-critical-ok.png"_qs;
    QTest::newRow("another direction") << u"de-1-up-box-critical-ok.png"_qs;
    QTest::newRow("no number for a ratio") << u"de-1.-ltr-box-critical-ok.png"_qs;
    QTest::newRow("ratio zero") << u"de-0-ltr-box-critical-ok.png"_qs;
    QTest::newRow("no exhibit") << u"de-1-ltr-.png"_qs;
    QTest::newRow("another kind of file") << u"de-1-ltr-box-critical-ok.jpg"_qs;
    QTest::newRow("mark-up") << u"de-1-ltr-box-<b>.png"_qs;
}

void tst_PictureName::pictureNameOf_anotherForm_isNone()
{
    QFETCH(const QString, fileName);

    QVERIFY(!pictureNameOf(fileName).has_value());
}

QTEST_GUILESS_MAIN(tst_PictureName)
#include "tst_PictureName.moc"

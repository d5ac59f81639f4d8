// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/UnitTranslator.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QSize>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtTest/QTest>

#include <limits>

using namespace ZYX_zglv6;

namespace {

const QString unitsKey = u"imageSizeUnits"_qs;

void compareAtResolution(double x, double y)
{
    const QSize size(6400, 4801);
    const auto text = [&](int unit, const char *form, double perInch) {
        CSettings().setValue(unitsKey, unit);
        return QString::asprintf(form, size.width() * perInch / x, size.height() * perInch / y);
    };
    QString expected = text(1, "%.2f x %.2f in", 1);
    QCOMPARE(sizeToString(size), expected);
    expected = text(2, "%.1f x %.1f cm", 2.54);
    QCOMPARE(sizeToString(size), expected);
    expected = text(3, "%.0f x %.0f mm", 25.4);
    QCOMPARE(sizeToString(size), expected);
    CSettings().setValue(unitsKey, 0);
    QCOMPARE(sizeToString(size), u"6400 x 4801 px"_qs);
}

} // namespace

/*! On the offscreen platform a screen has 100 pixels to the inch. */
class tst_SizeTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fileSizeToString_data();
    void fileSizeToString();
    void fileSizeToString_unitIsTranslated();

    void sizeToString_byUnit_data();
    void sizeToString_byUnit();
    void sizeToString_withoutSetting_isInPixels();
    void sizeToString_settingIsReadAsNumber_data();
    void sizeToString_settingIsReadAsNumber();
    void sizeToString_unknownUnit_failsTwoAssertions_data();
    void sizeToString_unknownUnit_failsTwoAssertions();
    void sizeToString_temporarySettings_count();
    void sizeToString_suffixIsTranslated();
    void sizeToString_resolutionIsThatOfTheScreen();
    void sizeToString_scaledScreen_hasItsRealPixels_data();
    void sizeToString_scaledScreen_hasItsRealPixels();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_SizeTexts::init()
{
    CSettings().remove(unitsKey);
}

void tst_SizeTexts::fileSizeToString_data()
{
    QTest::addColumn<long long>("size");
    QTest::addColumn<QString>("text");
    const auto add = [](long long size, const char *text) { QTest::newRow(text) << size << QString::fromLatin1(text); };
    add(0, "0B");
    add(1, "1B");
    add(999, "999B");
    add(1023, "1023B");
    add(1024, "1024B");
    add(1025, "1.0KB");
    add(1536, "1.5KB");
    add(10'240, "10.0KB");
    add(1'000'000, "976.6KB");
    add(1'048'575, "1024.0KB");
    QTest::newRow("1 MB exactly") << 1'048'576LL << u"1024.0KB"_qs;
    add(1'048'577, "1.0MB");
    add(1'572'864, "1.5MB");
    add(5LL * 1024 * 1024 * 1024, "5120.0MB");
    add(std::numeric_limits<long long>::max(), "8796093022208.0MB");
    add(-1, "-1B");
    add(-5000, "-5000B");
    add(-999'999, "-999999B");
    add(-1'234'567, "-1.23457e+06B");
    add(std::numeric_limits<long long>::min(), "-9.22337e+18B");
}

void tst_SizeTexts::fileSizeToString()
{
    QFETCH(const long long, size);
    QFETCH(const QString, text);
    QCOMPARE(ZYX_zglv6::fileSizeToString(size), text);
}

void tst_SizeTexts::fileSizeToString_unitIsTranslated()
{
    const UnitTranslator translator;
    QCOMPARE(ZYX_zglv6::fileSizeToString(5), u"5[B]"_qs);
    QCOMPARE(ZYX_zglv6::fileSizeToString(2048), u"2.0[KB]"_qs);
    QCOMPARE(ZYX_zglv6::fileSizeToString(2'097'152), u"2.0[MB]"_qs);
}

void tst_SizeTexts::sizeToString_byUnit_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    const auto add = [](int unit, const QSize &size, const char *text) {
        QTest::newRow(text) << unit << size << QString::fromLatin1(text);
    };
    add(0, {6400, 4801}, "6400 x 4801 px");
    add(1, {6400, 4801}, "64.00 x 48.01 in");
    add(2, {6400, 4801}, "162.6 x 121.9 cm");
    add(3, {6400, 4801}, "1626 x 1219 mm");
    add(0, {0, 1}, "0 x 1 px");
    add(1, {0, 1}, "0.00 x 0.01 in");
    add(2, {0, 1}, "0.0 x 0.0 cm");
    add(3, {0, 3}, "0 x 1 mm");
    add(0, {}, "-1 x -1 px");
    add(1, {-250, -3}, "-2.50 x -0.03 in");
    add(2, {-250, 10}, "-6.3 x 0.3 cm");
    add(3, {-250, 10}, "-64 x 3 mm");
    add(0, {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}, "2147483647 x -2147483648 px");
    add(1, {std::numeric_limits<int>::max(), 0}, "21474836.47 x 0.00 in");
}

void tst_SizeTexts::sizeToString_byUnit()
{
    QFETCH(const int, unit);
    QFETCH(const QSize, size);
    QFETCH(const QString, text);
    CSettings().setValue(unitsKey, unit);
    const TestSupport::AssertionReports reports;
    QCOMPARE(sizeToString(size), text);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SizeTexts::sizeToString_withoutSetting_isInPixels()
{
    QVERIFY(!CSettings().contains(unitsKey));
    QCOMPARE(sizeToString({640, 480}), u"640 x 480 px"_qs);
    QVERIFY(!CSettings().contains(unitsKey));
}

void tst_SizeTexts::sizeToString_settingIsReadAsNumber_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<QString>("text");
    QTest::newRow("text of a number") << QVariant(u"1"_qs) << u"1.00 x 2.00 in"_qs;
    QTest::newRow("word") << QVariant(u"cm"_qs) << u"100 x 200 px"_qs;
    QTest::newRow("empty") << QVariant(u""_qs) << u"100 x 200 px"_qs;
    QTest::newRow("list") << QVariant(QStringList{u"1"_qs, u"2"_qs}) << u"100 x 200 px"_qs;
}

void tst_SizeTexts::sizeToString_settingIsReadAsNumber()
{
    QFETCH(const QVariant, setting);
    QFETCH(const QString, text);
    CSettings().setValue(unitsKey, setting);
    QCOMPARE(sizeToString({100, 200}), text);
}

void tst_SizeTexts::sizeToString_unknownUnit_failsTwoAssertions_data()
{
    QTest::addColumn<int>("unit");
    for (const int unit : {4, -1, 100, std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", unit) << unit;
    }
}

void tst_SizeTexts::sizeToString_unknownUnit_failsTwoAssertions()
{
    QFETCH(const int, unit);
    CSettings().setValue(unitsKey, unit);
    const TestSupport::AssertionReports reports;
    QCOMPARE(sizeToString({640, 480}), u"640 x 480 "_qs); // the blank stays
    QCOMPARE(reports.texts().size(), 2);
    const QRegularExpression form(u"^ASSERT in .*SizeTexts\\.cpp"_qs);
    QVERIFY2(form.match(reports.texts().at(0)).hasMatch(), qPrintable(reports.texts().at(0)));
    QVERIFY2(form.match(reports.texts().at(1)).hasMatch(), qPrintable(reports.texts().at(1)));
    QVERIFY(reports.texts().at(0) != reports.texts().at(1));
}

void tst_SizeTexts::sizeToString_temporarySettings_count()
{
    CSettings().setValue(unitsKey, 1);
    {
        CTemporarySettings temporary{QDir(m_sandbox.filePath(QString()))};
        CSettings::setTemporarySettings(temporary);
        QCOMPARE(sizeToString({100, 200}), u"100 x 200 px"_qs);
        temporary.setValue(unitsKey, 2);
        QCOMPARE(sizeToString({100, 200}), u"2.5 x 5.1 cm"_qs);
    }
    QCOMPARE(sizeToString({100, 200}), u"1.00 x 2.00 in"_qs);
}

void tst_SizeTexts::sizeToString_suffixIsTranslated()
{
    const UnitTranslator translator;
    const QStringList texts{u"100 x 200 [px]"_qs, u"1.00 x 2.00 [in]"_qs, u"2.5 x 5.1 [cm]"_qs, u"25 x 51 [mm]"_qs};
    for (int unit = 0; unit < texts.size(); ++unit) {
        CSettings().setValue(unitsKey, unit);
        QCOMPARE(sizeToString({100, 200}), texts.at(unit));
    }
}

void tst_SizeTexts::sizeToString_resolutionIsThatOfTheScreen()
{
    const QScreen &screen = *QGuiApplication::primaryScreen();
    const QSizeF millimetres = screen.physicalSize();
    compareAtResolution(screen.devicePixelRatio() * screen.size().width() * 25.4 / millimetres.width(),
                        screen.devicePixelRatio() * screen.size().height() * 25.4 / millimetres.height());
}

void tst_SizeTexts::sizeToString_scaledScreen_hasItsRealPixels_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::newRow("1") << QByteArray("1");
    QTest::newRow("2") << QByteArray("2");
    QTest::newRow("4") << QByteArray("4");
}

void tst_SizeTexts::sizeToString_scaledScreen_hasItsRealPixels()
{
    QFETCH(const QByteArray, scale);
    const auto restore = qScopeGuard([] { qunsetenv("QT_SCALE_FACTOR"); });
    qputenv("QT_SCALE_FACTOR", scale); // for the other process
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), scale.toDouble());
    compareAtResolution(100, 100); // so many pixels of a picture fit on an inch of the same screen
}

QTEST_MAIN(tst_SizeTexts)
#include "tst_SizeTexts.moc"

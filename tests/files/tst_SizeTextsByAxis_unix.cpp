// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QSize>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

/*! On a screen of 1000 x 1000 pixels that is 10 inches wide and 5 high. */
class tst_SizeTextsByAxis_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizeToString_eachAxisHasItsResolution_data();
    void sizeToString_eachAxisHasItsResolution();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_SizeTextsByAxis_unix::sizeToString_eachAxisHasItsResolution_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("text");

    QTest::newRow("pixels") << 0 << u"300 x 300 px"_qs;
    QTest::newRow("inches") << 1 << u"3.00 x 1.50 in"_qs;
    QTest::newRow("centimetres") << 2 << u"7.6 x 3.8 cm"_qs;
    QTest::newRow("millimetres") << 3 << u"76 x 38 mm"_qs;
}

void tst_SizeTextsByAxis_unix::sizeToString_eachAxisHasItsResolution()
{
    QFETCH(const int, unit);

    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(screen->physicalDotsPerInchX(), 100.0);
    QCOMPARE(screen->physicalDotsPerInchY(), 200.0);
    CSettings().setValue(u"imageSizeUnits"_qs, unit);
    QTEST(sizeToString(QSize(300, 300)), "text");
}

QTEST_MAIN(tst_SizeTextsByAxis_unix)
#include "tst_SizeTextsByAxis_unix.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QSize>
#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

/*! A program without windows has no screen: 72 pixels to the inch. */
class tst_SizeTextsWithoutScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizeToString_data();
    void sizeToString();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_SizeTextsWithoutScreen::sizeToString_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    const auto add = [](int unit, const QSize &size, const char *text) {
        QTest::newRow(text) << unit << size << QString::fromLatin1(text);
    };
    add(0, {72, 144}, "72 x 144 px");
    add(1, {72, 144}, "1.00 x 2.00 in");
    add(2, {72, 144}, "2.5 x 5.1 cm");
    add(3, {72, 144}, "25 x 51 mm");
    add(1, {100, 1}, "1.39 x 0.01 in");
    add(2, {100, 1}, "3.5 x 0.0 cm");
    add(3, {100, 1}, "35 x 0 mm");
    add(1, {9, 27}, "0.13 x 0.38 in"); // halves go up
    add(1, {-9, -72}, "-0.13 x -1.00 in");
    add(3, {-72, 2}, "-25 x 1 mm");
}

void tst_SizeTextsWithoutScreen::sizeToString()
{
    QFETCH(const int, unit);
    QFETCH(const QSize, size);
    QFETCH(const QString, text);
    QVERIFY(qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr);
    CSettings().setValue(u"imageSizeUnits"_qs, unit);
    QCOMPARE(ZYX_zglv6::sizeToString(size), text);
}

QTEST_GUILESS_MAIN(tst_SizeTextsWithoutScreen)
#include "tst_SizeTextsWithoutScreen.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"

#include "utilsDll/frame/QtResources.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QRawFont>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace TestSupport;
using namespace ZYX_zglv6;

namespace {

struct WithoutApplication
{
    bool result = true;
    QStringList reports;
};

/*! Filled by main() before it makes the application. */
WithoutApplication &iconWithoutApplication()
{
    static WithoutApplication seen;
    return seen;
}

/*! The families of the application's fonts in the order in which they were added. */
QStringList addedFamilies()
{
    QStringList families;
    for (int id = 0; !QFontDatabase::applicationFontFamilies(id).isEmpty(); ++id) {
        families.append(QFontDatabase::applicationFontFamilies(id).join(u','));
    }
    return families;
}

QString familyOf(const QString &fileName)
{
    return QRawFont(u":/fonts/"_qs + fileName, 12).familyName();
}

} // namespace

class tst_ApplicationLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addApplicationFonts_addsEightInOrder();
    void addApplicationFonts_makesTheFamiliesOfTheSheetsKnown_data();
    void addApplicationFonts_makesTheFamiliesOfTheSheetsKnown();
    void addApplicationFonts_withoutFiles_addsNothing();

    void zyxAppIcon_hasTheSizesOfItsFiles();
    void zyxAppIcon_showsItsFiles_data();
    void zyxAppIcon_showsItsFiles();
    void setupApplicationIcon_setsIt();
    void setupApplicationIcon_withoutApplication_reports();
    void setupApplicationIcon_withoutFiles_asksWhetherTheIconIsNull();
};

void tst_ApplicationLook::addApplicationFonts_addsEightInOrder()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(addedFamilies(), QStringList());
    const AssertionReports reports;
    addApplicationFonts();
    QStringList expected;
    for (const char *fileName :
         {"Roboto-Light.ttf", "Roboto-Medium.ttf", "Roboto-Regular.ttf", "Roboto-Bold.ttf", "MavenProLight-200.otf",
          "MavenPro-Regular.ttf", "OpenSans-Light.ttf", "MavenPro-Regular.ttf"}) {
        expected.append(familyOf(QString::fromLatin1(fileName)));
    }
    QVERIFY(!expected.contains(QString()));
    QCOMPARE(addedFamilies(), expected);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ApplicationLook::addApplicationFonts_makesTheFamiliesOfTheSheetsKnown_data()
{
    QTest::addColumn<QString>("family");

    for (const char *family :
         {"Roboto Light", "RobotoMedium", "RobotoRegular", "RobotoBold", "Maven Pro", "OpenSansLight"}) {
        QTest::newRow(family) << QString::fromLatin1(family);
    }
}

void tst_ApplicationLook::addApplicationFonts_makesTheFamiliesOfTheSheetsKnown()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, family);
    addApplicationFonts();
    QVERIFY(addedFamilies().contains(family));
    QVERIFY(QFontDatabase::families().contains(family));
    QFont font(family);
    font.setPixelSize(17);
    QCOMPARE(QFontInfo(font).family(), family);
}

void tst_ApplicationLook::addApplicationFonts_withoutFiles_addsNothing()
{
    RUN_IN_FRESH_PROCESS();
    cleanupQtResources();
    const AssertionReports reports;
    addApplicationFonts();
    QCOMPARE(addedFamilies(), QStringList());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ApplicationLook::zyxAppIcon_hasTheSizesOfItsFiles()
{
    QList<QSize> expected;
    for (const int edge : {16, 32, 48, 64, 128, 256, 512, 1024}) {
        expected.append(QSize(edge, edge));
    }
    QCOMPARE(zyxAppIcon().availableSizes(QIcon::Normal, QIcon::Off), expected);
}

void tst_ApplicationLook::zyxAppIcon_showsItsFiles_data()
{
    QTest::addColumn<int>("edge");

    for (const int edge : {16, 32, 48, 64, 128, 256, 512, 1024}) {
        QTest::addRow("%d", edge) << edge;
    }
}

void tst_ApplicationLook::zyxAppIcon_showsItsFiles()
{
    QFETCH(const int, edge);
    const QImage file(u":/icons/app_icon/logo_%1.png"_qs.arg(edge));
    QCOMPARE(file.size(), QSize(edge, edge));
    const QImage shown = zyxAppIcon().pixmap(QSize(edge, edge), 1.0).toImage();
    constexpr QImage::Format ofPixmaps = QImage::Format_ARGB32_Premultiplied;
    QCOMPARE(shown.convertToFormat(ofPixmaps), file.convertToFormat(ofPixmaps));
}

void tst_ApplicationLook::setupApplicationIcon_setsIt()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(QGuiApplication::windowIcon().isNull());
    QVERIFY(setupApplicationIcon());
    QCOMPARE(QGuiApplication::windowIcon().availableSizes(), zyxAppIcon().availableSizes());
}

void tst_ApplicationLook::setupApplicationIcon_withoutApplication_reports()
{
    QVERIFY(!iconWithoutApplication().result);
    QCOMPARE(iconWithoutApplication().reports.size(), 1);
}

void tst_ApplicationLook::setupApplicationIcon_withoutFiles_asksWhetherTheIconIsNull()
{
    RUN_IN_FRESH_PROCESS();
    cleanupQtResources();
    const AssertionReports reports;
    const QIcon icon = zyxAppIcon();
    QCOMPARE(icon.availableSizes(), QList<QSize>());
    QCOMPARE(setupApplicationIcon(), !icon.isNull()); // whether such an icon is null differs among Qt's versions
    QCOMPARE(QGuiApplication::windowIcon().isNull(), icon.isNull());
    QCOMPARE(reports.texts(), QStringList());
}

int main(int argc, char *argv[])
{
    {
        const AssertionReports reports;
        iconWithoutApplication().result = setupApplicationIcon();
        iconWithoutApplication().reports = reports.texts();
    }
    const QApplication application(argc, argv);
    tst_ApplicationLook test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ApplicationLook.moc"

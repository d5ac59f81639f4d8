// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"
#include "support/FreshProcess.h"

#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtGui/QFontInfo>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

/*! The about box in the product's look. */
class StyledAboutDlg : public CAboutDlg
{
    Q_OBJECT

public:
    StyledAboutDlg()
        : CAboutDlg(nullptr, {})
    {
        setCustomStyleSheet(this, QssLoadBaseSheets, QString());
        myExec();
    }
};

QImage painted(QWidget &widget, int ratio)
{
    QImage image(widget.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

QColor colourAt(const QImage &image, const QPoint &place)
{
    return image.pixelColor(place * int(image.devicePixelRatio()));
}

QRect placeIn(const QWidget &dialog, const QString &name)
{
    const auto &widget = AboutBox::part<QWidget>(dialog, name);
    return {widget.mapTo(&dialog, QPoint(0, 0)), widget.size()};
}

/*! How many pixels of the widget differ from \a ground. */
int inkIn(const QImage &image, const QRect &place, const QColor &ground)
{
    const int ratio = int(image.devicePixelRatio());
    int count = 0;
    for (int y = place.top() * ratio; y < (place.bottom() + 1) * ratio; ++y) {
        for (int x = place.left() * ratio; x < (place.right() + 1) * ratio; ++x) {
            count += image.pixelColor(x, y) == ground ? 0 : 1;
        }
    }
    return count;
}

/*! Whether a colour is there as such: the inside of an underline is. */
bool hasColour(const QImage &image, const QRect &place, const QColor &colour)
{
    return inkIn(image, place, colour)
        < place.width() * place.height() * int(image.devicePixelRatio()) * int(image.devicePixelRatio());
}

void addRatioRows()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("ratio 1") << 1;
    QTest::newRow("ratio 2") << 2;
}

} // namespace

class tst_AboutLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void panel_isBlackAboveTheBottom_data();
    void panel_isBlackAboveTheBottom();
    void parts_arePainted_data();
    void parts_arePainted();
    void licenses_lieOnTheSheetsGround_data();
    void licenses_lieOnTheSheetsGround();
    void licenses_ofAFilledPage_lieOnTheSheetsGround_data();
    void licenses_ofAFilledPage_lieOnTheSheetsGround();
    void labels_haveTheFontsOfTheSheets();
    void texts_ofALanguage_haveRoom_data();
    void texts_ofALanguage_haveRoom();
    void logo_hasItsOwnSize();

private:
    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
};

void tst_AboutLook::initTestCase()
{
    addApplicationFonts();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

void tst_AboutLook::panel_isBlackAboveTheBottom_data()
{
    addRatioRows();
}

void tst_AboutLook::panel_isBlackAboveTheBottom()
{
    QFETCH(const int, ratio);
    StyledAboutDlg dialog;
    const QImage image = painted(dialog, ratio);
    QCOMPARE(image.size(), QSize(541, 485) * ratio);
    const QRect bottom = placeIn(dialog, u"bottomWidget"_qs);
    QCOMPARE(bottom.bottom(), 484);
    QCOMPARE(bottom.right(), 540);
    QCOMPARE(bottom.height(), 123);
    for (const QPoint &place : {QPoint(540, 0), QPoint(300, 20), QPoint(bottom.left(), bottom.top() - 1)}) {
        QCOMPARE(colourAt(image, place), QColor(Qt::black));
    }
    for (const QPoint &place : {bottom.topLeft(), bottom.topRight(), bottom.bottomLeft(), bottom.bottomRight()}) {
        QCOMPARE(colourAt(image, place), QColor(u"#262626"_qs));
    }
}

void tst_AboutLook::parts_arePainted_data()
{
    addRatioRows();
}

void tst_AboutLook::parts_arePainted()
{
    QFETCH(const int, ratio);
    StyledAboutDlg dialog;
    const QImage image = painted(dialog, ratio);
    for (const char *name : {"frame", "logoVersionLabel", "sloganLabel", "productNameLabel", "versionLabel",
                             "zyxLinkLabel", "leftCopyrightLabel"}) {
        QVERIFY2(inkIn(image, placeIn(dialog, QString::fromUtf8(name)), Qt::black) > 10 * ratio * ratio, name);
    }
    QVERIFY(inkIn(image, placeIn(dialog, u"copyrightTextLabel"_qs), QColor(u"#262626"_qs)) > 1000 * ratio * ratio);
    QVERIFY(colourAt(image, QPoint(0, 240)) != QColor(Qt::black)); // the bar
    for (const char *name : {"zyxLinkLabel", "copyrightTextLabel"}) {
        QVERIFY2(hasColour(image, placeIn(dialog, QString::fromUtf8(name)), QColor(u"#ce7044"_qs)), name);
    }
}

void tst_AboutLook::licenses_lieOnTheSheetsGround_data()
{
    addRatioRows();
}

void tst_AboutLook::licenses_lieOnTheSheetsGround()
{
    QFETCH(const int, ratio);
    StyledAboutDlg dialog;
    AboutBox::followLastLink(dialog);
    const QRect place = placeIn(dialog, u"description"_qs);
    const QImage image = painted(dialog, ratio);
    QCOMPARE(colourAt(image, place.topLeft()), QColor(u"#1b1b1b"_qs));
    QCOMPARE(colourAt(image, place.center()), QColor(u"#3a3a3a"_qs));
    QCOMPARE(colourAt(image, place.topLeft() - QPoint(5, 0)), QColor(Qt::black));
}

void tst_AboutLook::licenses_ofAFilledPage_lieOnTheSheetsGround_data()
{
    addRatioRows();
}

void tst_AboutLook::licenses_ofAFilledPage_lieOnTheSheetsGround()
{
    RUN_IN_FRESH_PROCESS(); // the folder of licences is asked for once
    QFETCH(const int, ratio);
    const QString installation = m_sandbox.filePath(u"installation"_qs);
    QVERIFY(AboutBox::write(installation + u"/Licenses/a.txt", "license"));
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, installation);
    StyledAboutDlg dialog;
    AboutBox::followLastLink(dialog);
    const QTextBrowser &description = AboutBox::description(dialog);
    QVERIFY(!description.toPlainText().isEmpty());
    QCOMPARE(description.palette().color(QPalette::Base).alpha(), 0); // the ground is the sheet's alone
    const QRect place = placeIn(dialog, u"description"_qs);
    const QWidget &viewport = *description.viewport();
    const QRect view(viewport.mapTo(&dialog, QPoint(0, 0)), viewport.size());
    const QImage image = painted(dialog, ratio);
    QCOMPARE(colourAt(image, place.topLeft()), QColor(u"#1b1b1b"_qs));
    for (const QPoint &corner : {view.topLeft(), view.topRight(), view.bottomLeft(), view.bottomRight()}) {
        QCOMPARE(colourAt(image, corner), QColor(u"#3a3a3a"_qs)); // the text keeps its distance
    }
    QVERIFY(inkIn(image, view, QColor(u"#3a3a3a"_qs)) > 1000 * ratio * ratio); // there is one
}

void tst_AboutLook::labels_haveTheFontsOfTheSheets()
{
    const StyledAboutDlg dialog;
    const auto colourOf = [&dialog](const QString &name) {
        return AboutBox::label(dialog, name).palette().color(QPalette::WindowText);
    };
    const QFont version = AboutBox::label(dialog, u"logoVersionLabel"_qs).font();
    QCOMPARE(version.pixelSize(), 45);
    QCOMPARE(QFontInfo(version).family(), u"Maven Pro"_qs);
    QCOMPARE(colourOf(u"logoVersionLabel"_qs), QColor(Qt::white));
    QCOMPARE(AboutBox::label(dialog, u"sloganLabel"_qs).font().pixelSize(), 23);
    QCOMPARE(colourOf(u"sloganLabel"_qs), QColor(Qt::white));
    QVERIFY(AboutBox::label(dialog, u"productNameLabel"_qs).font().bold());
    for (const char *name : {"productNameLabel", "versionLabel", "zyxLinkLabel", "copyrightTextLabel"}) {
        QCOMPARE(AboutBox::label(dialog, QString::fromUtf8(name)).font().pixelSize(), 11);
        QCOMPARE(colourOf(QString::fromUtf8(name)), QColor(u"#747474"_qs));
    }
    QCOMPARE(AboutBox::label(dialog, u"leftCopyrightLabel"_qs).font().pixelSize(), 8);
    QCOMPARE(colourOf(u"leftCopyrightLabel"_qs), QColor(u"#683a22"_qs));
}

void tst_AboutLook::texts_ofALanguage_haveRoom_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : AboutBox::languages) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

void tst_AboutLook::texts_ofALanguage_haveRoom()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    const StyledAboutDlg dialog;
    for (const char *name : {"logoVersionLabel", "sloganLabel", "productNameLabel", "versionLabel", "zyxLinkLabel",
                             "copyrightTextLabel", "leftCopyrightLabel"}) {
        const QLabel &label = AboutBox::label(dialog, QString::fromUtf8(name));
        const QRect place = placeIn(dialog, QString::fromUtf8(name));
        QVERIFY2(dialog.rect().contains(place), name);
        QVERIFY2(label.width() >= label.sizeHint().width() || label.objectName() == u"leftCopyrightLabel", name);
        QVERIFY2(label.height() >= label.sizeHint().height(), name);
    }
}

void tst_AboutLook::logo_hasItsOwnSize()
{
    const StyledAboutDlg dialog;
    const auto &frame = AboutBox::part<QFrame>(dialog, u"frame"_qs);
    for (const QObject *child : frame.children()) {
        if (child->inherits("QSvgWidget")) {
            QCOMPARE(qobject_cast<const QWidget *>(child)->size(), QSize(160, 63));
            return;
        }
    }
    QFAIL("The frame has no logo");
}

QTEST_MAIN(tst_AboutLook)

#include "tst_AboutLook.moc"

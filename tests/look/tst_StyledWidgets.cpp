// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyledWindow.h"
#include "support/Sandbox.h"

#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/settings/Settings.h"

#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>

using namespace StyledWidgets;
using namespace ZYX_zglv6;

// Classes of hosts, which the sheets find by their names.

class CFilmsUniversalFilter : public QFrame
{
    Q_OBJECT
};

class CGL5LinkButton : public QPushButton
{
    Q_OBJECT
};

class CGroupBox : public QGroupBox
{
    Q_OBJECT
};

namespace {

void chooseLanguage(int number)
{
    CSettings().setValue(u"ZyxAppLanguage"_qs, number);
    CLanguageManager::getInstance().loadLanguages();
}

int fontSizeOfLink(const Options &options)
{
    StyledWindow window(options);
    auto *filter = window.with(new CFilmsUniversalFilter, QSize(200, 40));
    auto *link = new CGL5LinkButton;
    link->setParent(filter);
    link->ensurePolished();
    return link->font().pixelSize();
}

} // namespace

class tst_StyledWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void linkButton_hasTheSizeOfTheLanguageOrOfTheAdditionalSheet_data();
    void linkButton_hasTheSizeOfTheLanguageOrOfTheAdditionalSheet();
    void snapshotView_inJapanese_hasALargerFont();
    void vignettingGroup_hasALineBelowOnlyWithoutTheAdditionalSheet();
    void label_hasTheFontOfThePlatformLayerOnlyWithTheBaseSheets();
    void centralWidget_isDarkerInPrinting();

    void dialog_andItsPartsHaveTheirGrounds();
    void tabs_showWhichIsSelected();
    void progressBar_fillsWithTheAccent();
    void scrollBar_hasGrooveHandleAndButtons();
    void menu_showsTheSelectedItemBetweenLines();
    void processingWidget_isTranslucentAndRounded();
    void messageBox_takesItsIconsFromTheSheet_data();
    void messageBox_takesItsIconsFromTheSheet();
    void messageBox_ordersItsButtonsBySheet();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_StyledWidgets::init()
{
    chooseLanguage(1033);
}

void tst_StyledWidgets::linkButton_hasTheSizeOfTheLanguageOrOfTheAdditionalSheet_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("sizeWithoutAdditional");

    QTest::newRow("English") << 1033 << 12;
    QTest::newRow("German") << 1031 << 12;
    QTest::newRow("French") << 1036 << 11;
    QTest::newRow("Chinese") << 2052 << 12;
}

void tst_StyledWidgets::linkButton_hasTheSizeOfTheLanguageOrOfTheAdditionalSheet()
{
    QFETCH(const int, language);
    QFETCH(const int, sizeWithoutAdditional);
    chooseLanguage(language);
    QCOMPARE(fontSizeOfLink(QssLoadBaseSheets | QssSkipAdditionalSheet), sizeWithoutAdditional);
    QCOMPARE(fontSizeOfLink(QssLoadBaseSheets), 13); // the last sheet wins over the language's
}

void tst_StyledWidgets::snapshotView_inJapanese_hasALargerFont()
{
    const auto editorSize = [] {
        StyledWindow window;
        auto *view = new QListView;
        view->setObjectName(u"snapshotView"_qs);
        window.with(view, QSize(100, 100));
        auto *editor = new QLineEdit(view);
        editor->ensurePolished();
        return editor->font().pixelSize();
    };
    QCOMPARE(editorSize(), 11);
    chooseLanguage(1041);
    QCOMPARE(editorSize(), 12);
}

void tst_StyledWidgets::vignettingGroup_hasALineBelowOnlyWithoutTheAdditionalSheet()
{
    const auto lastRow = [](const Options &options) {
        StyledWindow window(options);
        window.setObjectName(u"tabWidget"_qs);
        auto *group = new CGroupBox;
        group->setObjectName(u"vignetingGroup"_qs);
        return painted(window.with(group, QSize(100, 60))).pixel(50, 59);
    };
    QCOMPARE(QColor(lastRow(QssLoadBaseSheets | QssSkipAdditionalSheet)), QColor(0x3b3b3b));
    QCOMPARE(QColor(lastRow(QssLoadBaseSheets)), QColor(0x232323));
}

void tst_StyledWidgets::label_hasTheFontOfThePlatformLayerOnlyWithTheBaseSheets()
{
    StyledWindow plain{Options()};
    QCOMPARE(plain.with(new QLabel, QSize(50, 20))->font().families(), QStringList{u"Roboto Light"_qs});
    StyledWindow base;
    const QFont font = base.with(new QLabel, QSize(50, 20))->font();
    QCOMPARE(font.families(), QStringList{u"Lucida Sans Unicode"_qs});
    QCOMPARE(font.pixelSize(), 12);
}

void tst_StyledWidgets::centralWidget_isDarkerInPrinting()
{
    for (const auto &[options, colour] : {std::pair(Options(QssLoadBaseSheets), QColor(0x535353)),
                                          std::pair(QssLoadBaseSheets | QssLoadPrinting, QColor(0x232323))}) {
        StyledWindow window(options);
        auto *central = new QWidget;
        central->setObjectName(u"centralWidget"_qs);
        QCOMPARE(QColor(painted(window.with(central, QSize(50, 50))).pixel(25, 25)), colour);
    }
}

void tst_StyledWidgets::dialog_andItsPartsHaveTheirGrounds()
{
    QDialog dialog;
    setCustomStyleSheet(&dialog, QssLoadBaseSheets, QString());
    dialog.resize(300, 300);
    auto *strip = new QWidget(&dialog);
    strip->setObjectName(u"buttonStrip"_qs);
    strip->setGeometry(0, 250, 300, 50);
    auto *list = new QListView(&dialog);
    list->setGeometry(10, 10, 100, 100);
    auto *field = new QComboBox(&dialog);
    field->setGeometry(150, 10, 120, 26);
    const QImage image = painted(&dialog);
    QCOMPARE(QColor(image.pixel(130, 130)), QColor(0x232323));
    QCOMPARE(QColor(image.pixel(150, 275)), QColor(0x1b1b1b));
    QCOMPARE(QColor(image.pixel(10, 60)), QColor(0x1b1b1b)); // the list's outline
    QCOMPARE(QColor(image.pixel(60, 60)), QColor(0x3a3a3a));
    QCOMPARE(QColor(image.pixel(200, 23)), QColor(0x292929));
    QCOMPARE(field->view()->palette().color(QPalette::Base), QColor(0xaaaaaa)); // a pop-up, not a list of the dialog
}

void tst_StyledWidgets::tabs_showWhichIsSelected()
{
    StyledWindow window;
    auto *tabs = new QTabBar;
    tabs->setObjectName(u"controlsTab"_qs);
    tabs->addTab(QString(20, u' '));
    tabs->addTab(QString(20, u' '));
    tabs->setCurrentIndex(1);
    window.with(tabs, QSize(390, 40));
    const QImage image = painted(tabs);
    QCOMPARE(QColor(image.pixel(tabs->tabRect(0).center())), QColor(0x1f1f1f));
    QCOMPARE(QColor(image.pixel(tabs->tabRect(1).center())), QColor(0x232323));
}

void tst_StyledWidgets::progressBar_fillsWithTheAccent()
{
    StyledWindow window;
    auto *bar = new QProgressBar;
    bar->setValue(50);
    window.with(bar, QSize(200, 10));
    const QImage image = painted(bar);
    QCOMPARE(QColor(image.pixel(50, image.height() / 2)), QColor(0xa33f12));
    QCOMPARE(QColor(image.pixel(150, image.height() / 2)), QColor(0x3a3a3a));
}

void tst_StyledWidgets::scrollBar_hasGrooveHandleAndButtons()
{
    StyledWindow window;
    auto *bar = new QScrollBar(Qt::Vertical);
    bar->setRange(0, 100);
    bar->setPageStep(10);
    window.with(bar, QSize(12, 200));
    QCOMPARE(bar->sizeHint().width(), 12);
    const QImage image = painted(bar);
    QCOMPARE(QColor(image.pixel(0, 2)), QColor(0x363636)); // the button above
    QCOMPARE(QColor(image.pixel(0, 197)), QColor(0x363636)); // and below
    QCOMPARE(QColor(image.pixel(6, 12)), QColor(0x292929)); // the line between button and groove
    QCOMPARE(QColor(image.pixel(6, 13)), QColor(0x292929)); // the handle's own
    QCOMPARE(differenceAt(image, {0, 20}, QColor(0x565656), gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {11, 20}, QColor(0x494949), gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {0, 150}, QColor(0x383838), gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {6, 150}, QColor(0x414141), gradientTolerance), QString());
}

void tst_StyledWidgets::menu_showsTheSelectedItemBetweenLines()
{
    QMenu menu;
    setCustomStyleSheet(&menu, QssLoadBaseSheets, QString());
    menu.addAction(u"first"_qs);
    QAction *second = menu.addAction(u"second"_qs);
    menu.resize(menu.sizeHint());
    menu.setActiveAction(second);
    const QImage image = painted(&menu);
    const QRect item = menu.actionGeometry(second);
    const int x = item.left() + 4; // before the text
    QCOMPARE(QColor(image.pixel(x, menu.actionGeometry(menu.actions().constFirst()).center().y())), QColor(0xaaaaaa));
    QCOMPARE(QColor(image.pixel(x, item.top())), QColor(163, 63, 18));
    QCOMPARE(QColor(image.pixel(x, item.bottom())), QColor(163, 63, 18));
    // What a balloon menu has written out: the accent at 60 % over the menu's ground.
    QCOMPARE(differenceAt(image, {x, item.center().y()}, QColor(0xa5694e), 1), QString());
}

void tst_StyledWidgets::processingWidget_isTranslucentAndRounded()
{
    StyledWindow window;
    auto *overlay = new QWidget;
    overlay->setObjectName(u"processingWidget"_qs);
    window.with(overlay, QSize(100, 65));
    QImage image(overlay->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QStyleOption option;
    option.initFrom(overlay);
    overlay->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, overlay);
    QCOMPARE(image.pixelColor(50, 30), QColor(0, 0, 0, 150));
    QVERIFY(image.pixelColor(0, 0).alpha() < 20); // the corner's rest of smoothing
}

void tst_StyledWidgets::messageBox_takesItsIconsFromTheSheet_data()
{
    QTest::addColumn<QStyle::StandardPixmap>("icon");
    QTest::addColumn<QString>("path");

    QTest::newRow("critical") << QStyle::SP_MessageBoxCritical << u":/icons/secondary_windows/error.svg"_qs;
    QTest::newRow("information") << QStyle::SP_MessageBoxInformation << u":/icons/secondary_windows/information.svg"_qs;
    QTest::newRow("question") << QStyle::SP_MessageBoxQuestion << u":/icons/secondary_windows/warning.svg"_qs;
    QTest::newRow("warning") << QStyle::SP_MessageBoxWarning << u":/icons/secondary_windows/warning.svg"_qs;
}

void tst_StyledWidgets::messageBox_takesItsIconsFromTheSheet()
{
    QFETCH(const QStyle::StandardPixmap, icon);
    QFETCH(const QString, path);
    QMessageBox box;
    setCustomStyleSheet(&box, QssLoadBaseSheets, QString());
    box.ensurePolished();
    const QImage shown = box.style()->standardIcon(icon, nullptr, &box).pixmap(48, 48).toImage();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown, QIcon(path).pixmap(48, 48).toImage());
}

void tst_StyledWidgets::messageBox_ordersItsButtonsBySheet()
{
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    auto *buttons = box.findChild<QDialogButtonBox *>();
    QVERIFY(buttons != nullptr);
    setCustomStyleSheet(&box, QssLoadBaseSheets, QString());
    buttons->ensurePolished();
    QCOMPARE(buttons->style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, buttons), 1);
}

QTEST_MAIN(tst_StyledWidgets)

#include "tst_StyledWidgets.moc"

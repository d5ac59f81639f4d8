// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"
#include "support/VirtualSlot.h"

#include "uiControls/RetinaToolButton.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

/*! Makes what is protected in the dialog callable. */
class OpenedAboutDlg : public CAboutDlg
{
    Q_OBJECT

public:
    using CAboutDlg::CAboutDlg;
    using CAboutDlg::eventFilter;
};

/*! Notes the events of itself that it is asked about. */
class WatchedAboutDlg : public CAboutDlg
{
    Q_OBJECT

public:
    QList<QEvent::Type> ownEvents;

    using CAboutDlg::CAboutDlg;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == this) {
            ownEvents += event->type();
        }
        return CAboutDlg::eventFilter(watched, event);
    }
};

class OpenedBaseDialog : public CBaseDialog
{
    Q_OBJECT

public:
    using CBaseDialog::eventFilter;
};

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(27).toImage();
}

QImage imageOfFile(const QString &name)
{
    return imageOf(QIcon(u":/icons/arrows/"_qs + name));
}

} // namespace

class tst_AboutDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void window_hasNoFrameAndNoButtons();
    void window_keepsItsFlagsAndParent();
    void window_hasNoIconOfItsOwn();
    void myExec_opensBesideTheApplication();
    void myExec_ofAModalDialog_isNotModalAnyMore();
    void show_again_keepsThePlace();
    void eventFilter_letsAllThrough();
    void eventFilter_isAskedAboutTheDialogItself();
    void virtualOperations_standInTheirOrder();
    void slots_canBeCalledByName();

    void updateProductName_adds_data();
    void updateProductName_adds();
    void isPointInside_isDecidedByTheDesktopsPoint_data();
    void isPointInside_isDecidedByTheDesktopsPoint();

    void onBack_showsTheFirstPage();
    void onLinkClicked_tellsAddressesFromTheLastSentence_data();
    void onLinkClicked_tellsAddressesFromTheLastSentence();
    void backButton_isMadeAsDesigned();
    void backButton_hasAnImageForEachLook();
    void controls_haveNamesAndRoles();
    void images_areDecorative();

private:
    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
};

void tst_AboutDlg::window_hasNoFrameAndNoButtons()
{
    const CAboutDlg dialog(nullptr, Qt::WindowMaximizeButtonHint | Qt::WindowMinimizeButtonHint);
    QVERIFY(dialog.isWindow());
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!dialog.windowFlags().testAnyFlags(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
                                               | Qt::WindowContextHelpButtonHint));
}

void tst_AboutDlg::window_keepsItsFlagsAndParent()
{
    QWidget parent;
    const CAboutDlg dialog(&parent, Qt::Tool | Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowType(), Qt::Tool);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void tst_AboutDlg::window_hasNoIconOfItsOwn()
{
    CAboutDlg dialog(nullptr, {});
    dialog.myExec();
    QVERIFY(!dialog.testAttribute(Qt::WA_SetWindowIcon));
}

void tst_AboutDlg::myExec_opensBesideTheApplication()
{
    QWidget window;
    window.show();
    CAboutDlg dialog(&window, {});
    dialog.myExec(); // returns at once
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.isModal());
    QVERIFY(!QApplication::activeModalWidget());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void tst_AboutDlg::myExec_ofAModalDialog_isNotModalAnyMore()
{
    CAboutDlg dialog(nullptr, {});
    dialog.setModal(true);
    dialog.myExec();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowModality(), Qt::NonModal);
}

void tst_AboutDlg::show_again_keepsThePlace()
{
    CAboutDlg dialog(nullptr, {});
    dialog.myExec();
    dialog.move(7, 9);
    dialog.hide();
    dialog.myExec();
    QCOMPARE(dialog.pos(), QPoint(7, 9));
}

void tst_AboutDlg::eventFilter_letsAllThrough()
{
    OpenedAboutDlg dialog(nullptr, {});
    QEvent event(QEvent::User);
    QVERIFY(!dialog.eventFilter(&dialog, &event));
}

void tst_AboutDlg::eventFilter_isAskedAboutTheDialogItself()
{
    WatchedAboutDlg dialog(nullptr, {});
    dialog.ownEvents.clear();
    QEvent event(QEvent::User);
    QApplication::sendEvent(&dialog, &event);
    QCOMPARE(dialog.ownEvents, QList<QEvent::Type>{QEvent::User});
}

void tst_AboutDlg::virtualOperations_standInTheirOrder()
{
    const auto lastOfTheBase = TestSupport::virtualSlot(&CBaseDialog::canUseInAATSignalService);
    if (!lastOfTheBase) {
        QSKIP("Pointers to members do not tell here.");
    }
    QCOMPARE(TestSupport::virtualSlot(&CAboutDlg::myExec), std::optional(*lastOfTheBase + 1));
    QCOMPARE(TestSupport::virtualSlot(&CPhotoshopAboutDlg::myExec), std::optional(*lastOfTheBase + 1));
    QCOMPARE(TestSupport::virtualSlot(&OpenedAboutDlg::eventFilter),
             TestSupport::virtualSlot(&OpenedBaseDialog::eventFilter));
}

void tst_AboutDlg::slots_canBeCalledByName()
{
    const QMetaObject &about = CAboutDlg::staticMetaObject;
    QCOMPARE(about.className(), "ZYX_zglv6::CAboutDlg");
    QStringList names;
    for (int i = about.methodOffset(); i < about.methodCount(); ++i) {
        QCOMPARE(about.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(about.method(i).access(), QMetaMethod::Private);
        names += QString::fromUtf8(about.method(i).methodSignature());
    }
    QCOMPARE(names, (QStringList{u"onBack()"_qs, u"onLinkClicked(QString)"_qs}));
    QCOMPARE(CPhotoshopAboutDlg::staticMetaObject.superClass(), &about);
}

void tst_AboutDlg::updateProductName_adds_data()
{
    QTest::addColumn<QStringList>("suffixes");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QStringList{} << u"Zyx Grainlab 6"_qs;
    QTest::newRow("empty") << QStringList{u""_qs, QString()} << u"Zyx Grainlab 6"_qs;
    QTest::newRow("once") << QStringList{u"Trial"_qs} << u"Zyx Grainlab 6 Trial"_qs;
    QTest::newRow("twice") << QStringList{u"Trial"_qs, u"Trial"_qs} << u"Zyx Grainlab 6 Trial Trial"_qs;
    QTest::newRow("blank") << QStringList{u" "_qs} << u"Zyx Grainlab 6  "_qs;
    QTest::newRow("place") << QStringList{u"%1"_qs, u"b"_qs} << u"Zyx Grainlab 6 %1 b"_qs;
}

void tst_AboutDlg::updateProductName_adds()
{
    QFETCH(const QStringList, suffixes);
    CAboutDlg dialog(nullptr, {});
    for (const QString &suffix : suffixes) {
        dialog.updateProductName(suffix);
    }
    QTEST(AboutBox::label(dialog, u"productNameLabel"_qs).text(), "text");
}

void tst_AboutDlg::isPointInside_isDecidedByTheDesktopsPoint_data()
{
    QTest::addColumn<QPoint>("point"); // from the dialog's corner
    QTest::addColumn<bool>("isInside");

    QTest::newRow("first") << QPoint(0, 0) << true;
    QTest::newRow("last") << QPoint(540, 484) << true;
    QTest::newRow("left of it") << QPoint(-1, 0) << false;
    QTest::newRow("above it") << QPoint(0, -1) << false;
    QTest::newRow("right of it") << QPoint(541, 10) << false;
    QTest::newRow("below it") << QPoint(10, 485) << false;
}

void tst_AboutDlg::isPointInside_isDecidedByTheDesktopsPoint()
{
    QFETCH(const QPoint, point);
    CAboutDlg dialog(nullptr, {});
    dialog.move(100, 50);
    QTEST(dialog.isPointInside(QPoint(100, 50) + point), "isInside");
    dialog.show();
    dialog.move(20, 30);
    QTEST(dialog.isPointInside(QPoint(20, 30) + point), "isInside");
}

void tst_AboutDlg::onBack_showsTheFirstPage()
{
    CAboutDlg dialog(nullptr, {});
    dialog.show();
    for (int visit = 0; visit < 2; ++visit) {
        AboutBox::followLastLink(dialog);
        QCOMPARE(AboutBox::page(dialog), u"licensesPage"_qs);
        QTest::mouseClick(&AboutBox::backButton(dialog), Qt::LeftButton);
        QCOMPARE(AboutBox::page(dialog), u"aboutPage"_qs);
    }
}

void tst_AboutDlg::onLinkClicked_tellsAddressesFromTheLastSentence_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("isOpened");

    QTest::newRow("https") << u"https://example.test/a"_qs << true;
    QTest::newRow("http") << u"http://example.test/a"_qs << true;
    QTest::newRow("upper case") << u"HTTPS://example.test/a"_qs << false;
    QTest::newRow("mixed case") << u"Http://example.test/a"_qs << false;
    QTest::newRow("in the middle") << u" https://example.test/a"_qs << false;
    QTest::newRow("another scheme") << u"ftp://example.test/a"_qs << false;
    QTest::newRow("product's name") << u"Zyx Grainlab"_qs << false;
    QTest::newRow("nothing") << QString() << false;
}

void tst_AboutDlg::onLinkClicked_tellsAddressesFromTheLastSentence()
{
    QFETCH(const QString, link);
    QFETCH(const bool, isOpened);
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    QVERIFY(QMetaObject::invokeMethod(&dialog, "onLinkClicked", Q_ARG(QString, link)));
    QCOMPARE(browser.opened, isOpened ? QList<QUrl>{QUrl(link)} : QList<QUrl>());
    QCOMPARE(AboutBox::page(dialog), isOpened ? u"aboutPage"_qs : u"licensesPage"_qs);
}

void tst_AboutDlg::backButton_isMadeAsDesigned()
{
    const CAboutDlg dialog(nullptr, {});
    const QToolButton &button = AboutBox::backButton(dialog);
    QCOMPARE(button.metaObject()->className(), "CRetinaToolButton");
    QCOMPARE(button.minimumSize(), QSize(27, 27));
    QCOMPARE(button.maximumSize(), QSize(27, 27));
    QCOMPARE(button.iconSize(), QSize(44, 44));
}

void tst_AboutDlg::backButton_hasAnImageForEachLook()
{
    const QImage normal = imageOfFile(u"left-icon-default.svg"_qs);
    const QImage hovered = imageOfFile(u"left-icon-hover.svg"_qs);
    const QImage pressed = imageOfFile(u"left-icon-onpressed.svg"_qs);
    QVERIFY(!normal.isNull() && !hovered.isNull() && !pressed.isNull());
    QVERIFY(normal != hovered && normal != pressed && hovered != pressed);

    const CAboutDlg dialog(nullptr, {});
    auto *button = qobject_cast<CRetinaToolButton *>(&AboutBox::backButton(dialog));
    QVERIFY(button);
    QCOMPARE(imageOf(button->icon()), normal);
    QEvent enter(QEvent::Enter);
    button->enterEvent(&enter);
    QCOMPARE(imageOf(button->icon()), hovered);
    button->setPressState(true);
    QCOMPARE(imageOf(button->icon()), pressed);
}

void tst_AboutDlg::controls_haveNamesAndRoles()
{
    const CAboutDlg dialog(nullptr, {});
    const QAccessibleInterface *back = QAccessible::queryAccessibleInterface(&AboutBox::backButton(dialog));
    QCOMPARE(back->role(), QAccessible::PushButton);
    QCOMPARE(back->text(QAccessible::Name), u"Back"_qs);
    QAccessibleInterface *text = QAccessible::queryAccessibleInterface(&AboutBox::description(dialog));
    QVERIFY(text->textInterface());
    QCOMPARE(text->text(QAccessible::Name), u"Licenses"_qs);
}

void tst_AboutDlg::images_areDecorative()
{
    const CAboutDlg dialog(nullptr, {});
    int count = 0;
    const QWidgetList widgets = dialog.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QSvgWidget")) {
            ++count;
            QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
            QVERIFY(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
        }
    }
    QCOMPARE(count, 3);
}

QTEST_MAIN(tst_AboutDlg)

#include "tst_AboutDlg.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"

#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QMoveEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <memory>

using namespace ZYX_zglv6;

namespace {

/*! Tells what the base keeps of its first show, and where the dialog was moved to. */
class WatchedAboutDlg : public CPhotoshopAboutDlg
{
    Q_OBJECT

public:
    QList<QPoint> places;

    using CPhotoshopAboutDlg::CPhotoshopAboutDlg;
    using CPhotoshopAboutDlg::firstShow;

protected:
    void moveEvent(QMoveEvent *event) override
    {
        places += event->pos();
        CPhotoshopAboutDlg::moveEvent(event);
    }
};

/*! A window in place of the host's, and the dialog over it. */
class HostAndDialog
{
public:
    HostAndDialog()
    {
        m_host.show();
        m_dialog = new CPhotoshopAboutDlg(m_host.winId());
        m_parent.reset(m_dialog->parentWidget());
    }

    CPhotoshopAboutDlg &dialog() const
    {
        return *m_dialog;
    }

private:
    QWidget m_host;
    std::unique_ptr<QWidget> m_parent; // nobody else deletes it; the dialog goes with it
    CPhotoshopAboutDlg *m_dialog = nullptr;
};

QPoint expectedPlace(const QWidget &dialog)
{
    return dialog.screen()->availableGeometry().center() - QPoint(270, 242); // halves of 541 and 485
}

} // namespace

class tst_PhotoshopAboutDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void window_hasAFrameAndNoButtons();
    void parent_standsForTheHostsWindow();
    void parent_outlivesTheDialog();
    void form_isThatOfTheAboutBox();
    void show_setsTheIconEachTime();
    void show_placesTheDialogEachTime();
    void show_firstTimeAlone_reachesQDialog();
    void myExec_blocksUntilTheDialogIsClosed();
    void unknownWindow_isNoHindrance();

private:
    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
};

void tst_PhotoshopAboutDlg::window_hasAFrameAndNoButtons()
{
    const HostAndDialog host;
    QVERIFY(host.dialog().isWindow());
    QVERIFY(!host.dialog().windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!host.dialog().windowFlags().testAnyFlags(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
                                                      | Qt::WindowContextHelpButtonHint));
    QCOMPARE(host.dialog().windowType(), Qt::Dialog);
}

void tst_PhotoshopAboutDlg::parent_standsForTheHostsWindow()
{
    const HostAndDialog host;
    QCOMPARE(host.dialog().parentWidget()->metaObject()->className(), "CWidgetFromHWND");
    QVERIFY(!host.dialog().parentWidget()->parentWidget());
}

void tst_PhotoshopAboutDlg::parent_outlivesTheDialog()
{
    QWidget host;
    host.show();
    auto dialog = std::make_unique<CPhotoshopAboutDlg>(host.winId());
    const QPointer<QWidget> parent = dialog->parentWidget();
    dialog.reset();
    QVERIFY(parent);
    delete parent; // only so that the test leaves nothing behind
}

void tst_PhotoshopAboutDlg::form_isThatOfTheAboutBox()
{
    const HostAndDialog host;
    QCOMPARE(host.dialog().objectName(), u"aboutDlg"_qs);
    QCOMPARE(host.dialog().size(), QSize(541, 485));
    QCOMPARE(AboutBox::label(host.dialog(), u"productNameLabel"_qs).text(), u"Zyx Grainlab 6"_qs);
    AboutBox::followLastLink(host.dialog());
    QCOMPARE(AboutBox::page(host.dialog()), u"licensesPage"_qs);
}

void tst_PhotoshopAboutDlg::show_setsTheIconEachTime()
{
    const HostAndDialog host;
    CPhotoshopAboutDlg &dialog = host.dialog();
    QVERIFY(!dialog.testAttribute(Qt::WA_SetWindowIcon));
    for (int i = 0; i < 2; ++i) {
        dialog.show();
        QVERIFY(dialog.testAttribute(Qt::WA_SetWindowIcon));
        QVERIFY(!dialog.windowIcon().isNull());
        QCOMPARE(dialog.windowIcon().availableSizes(), zyxAppIcon().availableSizes());
        dialog.hide();
        dialog.setWindowIcon(QIcon());
    }
}

void tst_PhotoshopAboutDlg::show_placesTheDialogEachTime()
{
    const HostAndDialog host;
    CPhotoshopAboutDlg &dialog = host.dialog();
    for (const QPoint &place : {QPoint(3, 5), QPoint(40, 20)}) {
        dialog.move(place);
        dialog.show();
        QCOMPARE(dialog.pos(), expectedPlace(dialog));
        dialog.hide();
    }
}

void tst_PhotoshopAboutDlg::show_firstTimeAlone_reachesQDialog()
{
    QWidget host;
    host.show();
    auto *dialog = new WatchedAboutDlg(host.winId());
    const std::unique_ptr<QWidget> parent(dialog->parentWidget());
    parent->setGeometry(0, 0, 50, 40);
    QDialog plain(parent.get());
    plain.setFixedSize(dialog->size());
    plain.show();
    QVERIFY(plain.pos() != expectedPlace(*dialog)); // QDialog's place is another one

    QVERIFY(dialog->firstShow);
    for (int i = 0; i < 2; ++i) {
        dialog->places.clear();
        dialog->show();
        QVERIFY(!dialog->firstShow);
        QCOMPARE(dialog->places.contains(plain.pos()), i == 0);
        QCOMPARE(dialog->pos(), expectedPlace(*dialog));
        dialog->hide();
        dialog->move(3, 5);
        dialog->setAttribute(Qt::WA_Moved, false); // else QDialog would leave it there in any case
    }
}

void tst_PhotoshopAboutDlg::myExec_blocksUntilTheDialogIsClosed()
{
    const HostAndDialog host;
    CPhotoshopAboutDlg &dialog = host.dialog();
    bool wasModal = false;
    QTimer::singleShot(0, &dialog, [&dialog, &wasModal] {
        wasModal = dialog.isVisible() && dialog.isModal() && QApplication::activeModalWidget() == &dialog;
        dialog.reject();
    });
    CAboutDlg &about = dialog;
    about.myExec();
    QVERIFY(wasModal);
    QVERIFY(!dialog.isVisible());
}

void tst_PhotoshopAboutDlg::unknownWindow_isNoHindrance()
{
    auto *dialog = new CPhotoshopAboutDlg(0);
    const std::unique_ptr<QWidget> parent(dialog->parentWidget());
    dialog->show();
    QVERIFY(dialog->isVisible());
}

QTEST_MAIN(tst_PhotoshopAboutDlg)

#include "tst_PhotoshopAboutDlg.moc"

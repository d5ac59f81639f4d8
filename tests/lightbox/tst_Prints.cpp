// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HelpMenu.h"
#include "LightboxApplication.h"
#include "PhotoBar.h"
#include "PhotoFolder.h"
#include "PhotoView.h"
#include "TrashCan.h"
#include "Viewer.h"

#include "common/Look.h"
#include "support/Sandbox.h"

#include "aboutDlg/AboutDlg.h"
#include "uiControls/RetinaToolButton.h"
#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtGui/QAction>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <memory>

using namespace ZYX_zglv6;

namespace {

QAction *actionOf(const QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions()) {
        if (action->text().remove(u'&') == text) {
            return action;
        }
    }
    return nullptr;
}

/*! A photograph whose left half is red and whose right half is blue. */
QImage twoHalves()
{
    QImage photo(40, 20, QImage::Format_RGB32);
    photo.fill(Qt::red);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = photo.width() / 2; x < photo.width(); ++x) {
            photo.setPixelColor(x, y, Qt::blue);
        }
    }
    return photo;
}

} // namespace

/*! What is done to a photograph by hand, and what the window offers beside the photographs. */
class tst_Prints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void print_isThePhotographWithAllThatWasDone();
    void turn_ofAMirroredPrint_isClockwise();
    void zoom_walksTheScales();
    void zoom_isToldForASecond();
    void zoomedPhotograph_canBeScrolled();
    void bar_givesTheCommands();
    void turnedPhotograph_isAskedForBeforeItGoes_data();
    void turnedPhotograph_isAskedForBeforeItGoes();
    void turnedPhotograph_closingTheWindow_data();
    void turnedPhotograph_closingTheWindow();
    void photographAsItWas_goesWithoutAQuestion();
    void savePrint_writesWhatIsSeen();
    void savePrint_thatCannotBeWritten_isTold();
    void trash_withoutMoreQuestions();
    void aboutBox_isOpenBesideTheWindow();
    void missingDataFiles_areToldOneAfterTheOther();

private:
    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<PhotoFolder> m_folder;
};

void tst_Prints::initTestCase()
{
    QVERIFY(QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
    putOnLook(QString());
}

void tst_Prints::init()
{
    CSettings().remove(u"lightbox/trashWithoutQuestion"_qs);
    m_folder = std::make_unique<PhotoFolder>(m_sandbox.filePath(u"."_qs));
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
}

void tst_Prints::cleanup()
{
    m_folder.reset();
    TrashCan::empty();
}

void tst_Prints::print_isThePhotographWithAllThatWasDone()
{
    CPhotoView view;
    QVERIFY(view.print().isNull());
    view.showPhoto(twoHalves());
    QCOMPARE(view.print(), twoHalves());
    view.setMirrored(true);
    QCOMPARE(view.print().pixelColor(5, 10), QColor(Qt::blue));
    view.setMirrored(false);
    view.turn();
    QCOMPARE(view.print().size(), QSize(20, 40));
    QCOMPARE(view.print().pixelColor(10, 5), QColor(Qt::red));
    QCOMPARE(view.print().pixelColor(10, 35), QColor(Qt::blue));
    view.setBlackAndWhite(true);
    const QColor gray = view.print().pixelColor(10, 5);
    QVERIFY(gray.red() == gray.green() && gray.green() == gray.blue());
    view.setFramed(true);
    QCOMPARE(view.print().size(), QSize(22, 42));
    QCOMPARE(view.print().pixelColor(0, 20), QColor(Qt::white));
    view.showPhoto(twoHalves());
    QCOMPARE(view.print().size(), QSize(42, 22)); // another photograph is not turned; the panel still counts
}

void tst_Prints::turn_ofAMirroredPrint_isClockwise()
{
    CPhotoView view;
    view.showPhoto(twoHalves());
    view.setMirrored(true); // blue at the left
    view.turn();
    QCOMPARE(view.print().pixelColor(10, 5), QColor(Qt::blue)); // the left side is on top
}

void tst_Prints::zoom_walksTheScales()
{
    CPhotoView view;
    view.resize(448, 448);
    QCOMPARE(view.zoom(), 0);
    view.zoomIn();
    QCOMPARE(view.zoom(), 0);
    QImage photo(1000, 1000, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    view.showPhoto(photo);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.zoom(), 40); // 448 without 24 at each side
    for (const int scale : {50, 67, 100, 150, 200, 300, 400, 400}) {
        view.zoomIn();
        QCOMPARE(view.zoom(), scale);
    }
    for (const int scale : {300, 200, 150, 100, 67, 50, 33, 25, 10, 5, 5}) {
        view.zoomOut();
        QCOMPARE(view.zoom(), scale);
    }
    view.zoomToFit();
    QCOMPARE(view.zoom(), 40);
}

void tst_Prints::zoom_isToldForASecond()
{
    Viewer viewer(m_folder->path());
    auto *label = viewer.window.findChild<ZoomPainter *>();
    QVERIFY(!label->isVisible());
    viewer.press(Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(label->isVisible());
    auto *view = viewer.window.findChild<CPhotoView *>();
    QCOMPARE(label->accessibleName(), u"%1 %"_qs.arg(view->zoom()));
    QTRY_VERIFY_WITH_TIMEOUT(!label->isVisible(), watchdogMs);
}

void tst_Prints::zoomedPhotograph_canBeScrolled()
{
    CPhotoView view;
    view.resize(448, 448);
    QImage photo(1000, 1000, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    view.showPhoto(photo);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(!view.horizontalScrollBar()->isVisible());
    view.zoomIn();
    view.zoomIn();
    view.zoomIn();
    QTRY_VERIFY(view.horizontalScrollBar()->isVisible());
    QCOMPARE(view.widget()->width(), 1048);
}

void tst_Prints::bar_givesTheCommands()
{
    Viewer viewer(m_folder->path());
    const QList<CRetinaToolButton *> buttons
        = viewer.window.findChild<CPhotoBar *>()->findChildren<CRetinaToolButton *>();
    QStringList texts;
    for (const CRetinaToolButton *button : buttons) {
        texts.append(QString(button->defaultAction()->text()).remove(u'&'));
    }
    QCOMPARE(texts, (QStringList{u"Previous"_qs, u"Next"_qs, u"Turn"_qs, u"Zoom in"_qs, u"Zoom out"_qs}));
    QTest::mouseClick(buttons.at(1), Qt::LeftButton);
    QCOMPARE(viewer.window.currentName(), u"b.jpg"_qs);
    const QPixmap before = buttons.at(1)->grab();
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(buttons.at(1), &enter);
    QVERIFY(buttons.at(1)->grab().toImage() != before.toImage());
}

void tst_Prints::turnedPhotograph_isAskedForBeforeItGoes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("shown");

    QTest::newRow("discard") << u"Don't save"_qs << u"b.jpg"_qs;
    QTest::newRow("stay") << u"Cancel"_qs << u"a.jpg"_qs;
}

void tst_Prints::turnedPhotograph_isAskedForBeforeItGoes()
{
    QFETCH(const QString, button);
    QFETCH(const QString, shown);

    Viewer viewer(m_folder->path());
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    QString text;
    const BoxGuest guest([&text, &button](QDialog &box) {
        text = static_cast<QMessageBox &>(box).text();
        buttonOf(box, button)->click();
    });
    viewer.press(Qt::Key_Right);
    QCOMPARE(guest.visits(), 1);
    QCOMPARE(text, u"\"a.jpg\" was turned. Save the print?"_qs);
    QCOMPARE(viewer.window.currentName(), shown);
}

void tst_Prints::turnedPhotograph_closingTheWindow_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isClosed");

    QTest::newRow("discard") << u"Don't save"_qs << true;
    QTest::newRow("stay") << u"Cancel"_qs << false;
}

void tst_Prints::turnedPhotograph_closingTheWindow()
{
    QFETCH(const QString, button);
    QFETCH(const bool, isClosed);

    Viewer viewer(m_folder->path());
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    const BoxGuest guest(clicking(button));
    QCOMPARE(viewer.window.close(), isClosed);
    QCOMPARE(guest.visits(), 1);
}

void tst_Prints::photographAsItWas_goesWithoutAQuestion()
{
    Viewer viewer(m_folder->path());
    const BoxGuest guest([](QDialog & /*box*/) {});
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.currentName(), u"b.jpg"_qs);
    QVERIFY(viewer.window.close());
    QCOMPARE(guest.visits(), 0);
}

void tst_Prints::savePrint_writesWhatIsSeen()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Viewer viewer(m_folder->path());
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    QString proposal;
    const BoxGuest guest([&proposal](QDialog &dialog) {
        proposal = dialog.findChild<QLineEdit *>()->text();
        QTest::keyClick(dialog.findChild<QLineEdit *>(), Qt::Key_Return);
    });
    viewer.window.savePrint();
    QCOMPARE(guest.visits(), 1);
    QCOMPARE(proposal, u"a print.jpg"_qs);
    QCOMPARE(viewer.window.statusText(), u"Saved the print as a print.jpg"_qs);
    QCOMPARE(QImage(m_folder->filePath(u"a print.jpg"_qs)).size(), QSize(30, 40));
    const BoxGuest nobody([](QDialog & /*box*/) {});
    QVERIFY(viewer.window.close()); // it is saved
    QCOMPARE(nobody.visits(), 0);
}

void tst_Prints::savePrint_thatCannotBeWritten_isTold()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Viewer viewer(m_folder->path());
    const BoxGuest guest([](QDialog &dialog) {
        auto *line = dialog.findChild<QLineEdit *>();
        line->selectAll();
        line->insert(u"a.unknown"_qs);
        QTest::keyClick(line, Qt::Key_Return);
    });
    viewer.window.savePrint();
    QCOMPARE(viewer.window.statusText(), u"a.unknown can't be saved"_qs);
    QVERIFY(!m_folder->contains(u"a.unknown"_qs));
}

void tst_Prints::trash_withoutMoreQuestions()
{
    Viewer viewer(m_folder->path());
    const BoxGuest first([](QDialog &box) {
        box.findChild<QCheckBox *>()->setChecked(true);
        buttonOf(box, u"No"_qs)->click();
    });
    viewer.press(Qt::Key_Delete);
    QVERIFY(m_folder->contains(u"a.jpg"_qs)); // "No" and no more questions would be no answer for the next time
    const BoxGuest second([](QDialog &box) {
        QCOMPARE(box.findChild<QCheckBox *>()->text().remove(u'&'), u"Do not ask again"_qs);
        box.findChild<QCheckBox *>()->setChecked(true);
        buttonOf(box, u"Yes"_qs)->click();
    });
    viewer.press(Qt::Key_Delete);
    QCOMPARE(second.visits(), 1);
    QVERIFY(!m_folder->contains(u"a.jpg"_qs));
    const BoxGuest nobody([](QDialog & /*box*/) {});
    viewer.press(Qt::Key_Delete);
    QCOMPARE(nobody.visits(), 0);
    QVERIFY(!m_folder->contains(u"b.jpg"_qs));
}

void tst_Prints::aboutBox_isOpenBesideTheWindow()
{
    Viewer viewer(m_folder->path());
    actionOf(*viewer.window.findChild<CHelpMenu *>(), u"About Zyx Grainlab"_qs)->trigger();
    const QPointer<CAboutDlg> about = viewer.window.findChild<CAboutDlg *>();
    QVERIFY(about->isVisible());
    QVERIFY(!about->isModal());
    about->close();
    QTRY_VERIFY_WITH_TIMEOUT(about.isNull(), watchdogMs);
}

void tst_Prints::missingDataFiles_areToldOneAfterTheOther()
{
    Viewer viewer(m_folder->path());
    QStringList names;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&names] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box && box->isVisible()) {
            names.append(box->text().section(u' ', 2, 2));
            box->reject();
        }
    });
    closer.start(5);
    actionOf(*viewer.window.findChild<CHelpMenu *>(), u"Check the data files"_qs)->trigger();
    QCOMPARE(names,
             (QStringList{u"dop.gpa"_qs, u"ZL5.lua"_qs, u"Frames.lua"_qs, u"Textures.lua"_qs, u"Defects.lua"_qs}));
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_Prints test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Prints.moc"

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
#include <QtCore/QSemaphore>
#include <QtCore/QStandardPaths>
#include <QtGui/QAction>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

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

} // namespace

/*! What is done to a photograph by hand, and what the window offers beside the photographs. */
class tst_Prints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void zoom_isToldForASecond();
    void longLoading_isSeen();
    void bar_givesTheCommands();
    void turnedPhotograph_isAskedForBeforeItGoes_data();
    void turnedPhotograph_isAskedForBeforeItGoes();
    void turnedPhotograph_closingTheWindow_data();
    void turnedPhotograph_closingTheWindow();
    void turnedPhotograph_isSavedBeforeItGoes_data();
    void turnedPhotograph_isSavedBeforeItGoes();
    void turnedPhotograph_isAskedForEvenBeforeTheTrash();
    void photographAsItWas_goesWithoutAQuestion();
    void savePrint_writesWhatIsSeen();
    void savePrint_isAsLargeAsThePhotograph();
    void savePrint_withoutAnEnding_getsTheFilters_data();
    void savePrint_withoutAnEnding_getsTheFilters();
    void savePrint_thatCannotBeWritten_isTold();
    void open_showsThePhotographAndItsFolder();
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
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a guest finds Qt's alone
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

void tst_Prints::longLoading_isSeen()
{
    Viewer viewer(m_folder->path());
    QSemaphore road;
    viewer.window.pool().start([&road] { road.acquire(); }); // in front of the loader
    auto *overlay = viewer.window.findChild<ProgressPainter *>();
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (overlay->isVisible()) {
            road.release();
            watch.stop();
        }
    });
    watch.start(10);
    viewer.window.showNext(); // ends when it was seen
    QCOMPARE(viewer.window.currentName(), u"b.jpg"_qs);
    QVERIFY(!watch.isActive());
    QVERIFY(!overlay->isVisible());
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

void tst_Prints::turnedPhotograph_isSavedBeforeItGoes_data()
{
    QTest::addColumn<QString>("name"); // that is typed; none for a cancelled dialog
    QTest::addColumn<QString>("shown");

    QTest::newRow("saved") << u"print.jpg"_qs << u"b.jpg"_qs;
    QTest::newRow("cancelled") << QString() << u"a.jpg"_qs;
    QTest::newRow("failed") << u"print.unknown"_qs << u"a.jpg"_qs;
}

void tst_Prints::turnedPhotograph_isSavedBeforeItGoes()
{
    QFETCH(const QString, name);
    QFETCH(const QString, shown);

    Viewer viewer(m_folder->path());
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    const BoxGuest question(clicking(u"Save"_qs));
    std::unique_ptr<BoxGuest> dialog;
    connect(qApp, &QApplication::focusChanged, this, [&] { // the question is gone, the dialog comes
        if (question.visits() == 1 && !dialog) {
            dialog = std::make_unique<BoxGuest>(
                name.isEmpty() ? std::function<void(QDialog &)>([](QDialog & /*box*/) {}) : typing(name));
        }
    });
    viewer.press(Qt::Key_Right);
    disconnect(qApp, &QApplication::focusChanged, this, nullptr);
    QCOMPARE(viewer.window.currentName(), shown);
    QCOMPARE(m_folder->contains(u"print.jpg"_qs), name == u"print.jpg");
    QVERIFY(name != u"print.unknown" || viewer.window.statusText() == u"print.unknown can't be saved");
}

void tst_Prints::turnedPhotograph_isAskedForEvenBeforeTheTrash()
{
    CSettings().setValue(u"lightbox/trashWithoutQuestion"_qs, true);
    Viewer viewer(m_folder->path());
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    const BoxGuest guest(clicking(u"No"_qs));
    viewer.press(Qt::Key_Delete);
    QCOMPARE(guest.visits(), 1);
    QVERIFY(m_folder->contains(u"a.jpg"_qs));
}

void tst_Prints::photographAsItWas_goesWithoutAQuestion()
{
    Viewer viewer(m_folder->path());
    for (int i = 0; i < 4; ++i) {
        viewer.press(Qt::Key_R, Qt::ControlModifier); // once round
    }
    const BoxGuest guest([](QDialog & /*box*/) {});
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.currentName(), u"b.jpg"_qs);
    QVERIFY(viewer.window.close());
    QCOMPARE(guest.visits(), 0);
}

void tst_Prints::savePrint_writesWhatIsSeen()
{
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

void tst_Prints::savePrint_isAsLargeAsThePhotograph()
{
    const QSize size(3000, 2000); // larger than what is loaded for the screen
    QVERIFY(m_folder->addPhoto(u"0.jpg"_qs, size));
    Viewer viewer(m_folder->path());
    QCOMPARE(viewer.window.currentName(), u"0.jpg"_qs);
    viewer.press(Qt::Key_R, Qt::ControlModifier);
    const BoxGuest guest(typing(u"print.png"_qs));
    viewer.window.savePrint();
    QCOMPARE(QImage(m_folder->filePath(u"print.png"_qs)).size(), size.transposed());
}

void tst_Prints::savePrint_withoutAnEnding_getsTheFilters_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("status");

    QTest::newRow("new") << u"print"_qs << u"Saved the print as print.jpg"_qs;
    QTest::newRow("there already") << u"b"_qs << u"b.jpg is there already"_qs;
}

void tst_Prints::savePrint_withoutAnEnding_getsTheFilters()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, status);

    const QByteArray before = m_folder->contentOf(u"b.jpg"_qs);
    Viewer viewer(m_folder->path());
    const BoxGuest guest(typing(typed));
    viewer.window.savePrint();
    QCOMPARE(viewer.window.statusText(), status);
    QCOMPARE(m_folder->contentOf(u"b.jpg"_qs), before);
}

void tst_Prints::open_showsThePhotographAndItsFolder()
{
    const PhotoFolder other(m_sandbox.filePath(u"."_qs));
    QVERIFY(other.addPhoto(u"c.jpg"_qs));
    QVERIFY(other.addPhoto(u"d.jpg"_qs));
    Viewer viewer(m_folder->path());
    const BoxGuest guest(typing(other.filePath(u"d.jpg"_qs)));
    viewer.window.open();
    QCOMPARE(guest.visits(), 1);
    QCOMPARE(viewer.window.currentPath(), other.filePath(u"d.jpg"_qs));
    viewer.press(Qt::Key_Left);
    QCOMPARE(viewer.window.currentName(), u"c.jpg"_qs);
}

void tst_Prints::savePrint_thatCannotBeWritten_isTold()
{
    Viewer viewer(m_folder->path());
    const BoxGuest guest(typing(u"a.unknown"_qs));
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

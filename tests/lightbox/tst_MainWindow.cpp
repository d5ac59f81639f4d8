// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LightboxApplication.h"
#include "PhotoFolder.h"
#include "TrashCan.h"
#include "UnitMenu.h"
#include "Viewer.h"

#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

using namespace ZYX_zglv6;

namespace {

constexpr int longerThanTheGateWaitsMs = 1500;

/*! Until a command that waited in front of an open gate would have come. */
void waitAsLongAsTheGateDoes()
{
    QTimer timer;
    timer.setSingleShot(true);
    QSignalSpy timeOut(&timer, &QTimer::timeout);
    timer.start(longerThanTheGateWaitsMs);
    timeOut.wait(watchdogMs);
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void statusText_tellsPlaceAndSizes();
    void arrowKeys_walkTheFolder();
    void arrowKeys_findWhatIsOnDiskNow();
    void deleteKey_asksFirst_data();
    void deleteKey_asksFirst();
    void deleteKey_asksAboveTheWindowWithNoAsTheAnswer();
    void nameLikeMarkup_isShownAsItIs();
    void trashedPhotograph_givesWayToAnother_data();
    void trashedPhotograph_givesWayToAnother();
    void photographThatHasGone_isNotTrashedAndLogged();
    void emptyFolder_hasNothingToTrashOrToCopy();
    void openBox_keepsTheGateShut_data();
    void openBox_keepsTheGateShut();
    void copy_hasTheNameThatIsTyped_data();
    void copy_hasTheNameThatIsTyped();
    void copy_wrongNameIsRefused_data();
    void copy_wrongNameIsRefused();
    void copy_existingFileIsKept_data();
    void copy_existingFileIsKept();
    void copy_proposesANameAndCanBeCancelled_data();
    void copy_proposesANameAndCanBeCancelled();
    void copy_withoutRoomIsRefused();
    void copy_ofAPhotographThatHasGoneIsTold();
    void copy_isMetOnTheWay();
    void units_changeTheTextAtOnce_data();
    void units_changeTheTextAtOnce();
    void units_areStoredAndMarked();
    void unitChosenWhileLoading_comesLater();
    void unitChosenWhileLoading_isForgottenForALaterCommand();

private:
    QString statusFor(const QString &name, int position, int count) const;

    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<PhotoFolder> m_folder;
};

void tst_MainWindow::initTestCase()
{
    // Without it what is thrown away goes elsewhere.
    QVERIFY(QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a guest finds Qt's alone
}

void tst_MainWindow::init()
{
    CSettings().remove(imageSizeUnitsKey);
    m_folder = std::make_unique<PhotoFolder>(m_sandbox.filePath(u"."_qs));
}

void tst_MainWindow::cleanup()
{
    m_folder.reset();
    TrashCan::empty();
}

QString tst_MainWindow::statusFor(const QString &name, int position, int count) const
{
    return u"%1 of %2: %3, 40 x 30 px, %4B"_qs.arg(QString::number(position), QString::number(count), name,
                                                   QString::number(m_folder->contentOf(name).size()));
}

void tst_MainWindow::statusText_tellsPlaceAndSizes()
{
    QVERIFY(m_folder->addPhoto(u"%2 a.jpg"_qs, QSize(80, 20)));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs, QSize(30, 40)));
    QFile photo(m_folder->filePath(u"b.jpg"_qs));
    QVERIFY(photo.resize(319'898)); // 312.4 times 1024, and a little
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    const QString bytes = QString::number(m_folder->contentOf(u"%2 a.jpg"_qs).size());
    QCOMPARE(viewer.window.statusText(), u"1 of 2: %1, 80 x 20 px, %2B"_qs.arg(u"%2 a.jpg"_qs, bytes));
    viewer.window.showNext();
    QCOMPARE(viewer.window.statusText(), u"2 of 2: b.jpg, 30 x 40 px, 312.4KB"_qs);
}

void tst_MainWindow::arrowKeys_walkTheFolder()
{
    for (const QString &name : {u"c.JPEG"_qs, u"A.jpg"_qs, u"b.JPG"_qs}) {
        QVERIFY(m_folder->addPhoto(name));
    }
    QVERIFY(m_folder->addFile(u"a1.txt"_qs));
    QVERIFY(m_folder->addFile(u".a.txt"_qs));
    QVERIFY(m_folder->addFolder(u"b1.jpg"_qs));
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    QCOMPARE(viewer.window.statusText(), statusFor(u"A.jpg"_qs, 1, 3));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"b.JPG"_qs, 2, 3));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"c.JPEG"_qs, 3, 3));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"A.jpg"_qs, 1, 3));
    viewer.press(Qt::Key_Left);
    QCOMPARE(viewer.window.statusText(), statusFor(u"c.JPEG"_qs, 3, 3));
    viewer.press(Qt::Key_Left);
    QCOMPARE(viewer.window.statusText(), statusFor(u"b.JPG"_qs, 2, 3));
}

void tst_MainWindow::arrowKeys_findWhatIsOnDiskNow()
{
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"c.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"d.jpg"_qs));
    Viewer viewer(m_folder->path());
    QVERIFY(m_folder->remove(u"c.jpg"_qs));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"d.jpg"_qs, 2, 2));
    QVERIFY(m_folder->addPhoto(u"C1.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    viewer.press(Qt::Key_Left);
    QCOMPARE(viewer.window.statusText(), statusFor(u"C1.jpg"_qs, 3, 4));
    QVERIFY(m_folder->remove(u"C1.jpg"_qs)); // the one that is shown
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"d.jpg"_qs, 3, 3));
    for (const QString &name : {u"a.jpg"_qs, u"b.jpg"_qs, u"d.jpg"_qs}) {
        QVERIFY(m_folder->remove(name));
    }
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), u"No photographs in this folder"_qs);
    QVERIFY(m_folder->addPhoto(u"new.jpg"_qs));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"new.jpg"_qs, 1, 1));
}

void tst_MainWindow::deleteKey_asksFirst_data()
{
    QTest::addColumn<int>("key"); // in the box
    QTest::addColumn<QString>("button"); // that has the focus; none for the one that has it by itself
    QTest::addColumn<bool>("isMoved");

    QTest::newRow("Yes") << int(Qt::Key_Space) << u"Yes"_qs << true;
    QTest::newRow("No") << int(Qt::Key_Space) << u"No"_qs << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << QString() << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << QString() << false;
    QTest::newRow("Escape from Yes") << int(Qt::Key_Escape) << u"Yes"_qs << false;
}

void tst_MainWindow::deleteKey_asksFirst()
{
    QFETCH(const int, key);
    QFETCH(const QString, button);
    QFETCH(const bool, isMoved);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    bool isClosedByKey = false;
    const BoxGuest guest([&](QDialog &box) {
        if (!button.isEmpty()) {
            buttonOf(box, button)->setFocus();
        }
        QTest::keyClick(box.focusWidget(), Qt::Key(key));
        isClosedByKey = !box.isVisible();
    });
    viewer.press(Qt::Key_Delete);
    QCOMPARE(guest.visits(), 1);
    QVERIFY(isClosedByKey);
    QCOMPARE(m_folder->names(), isMoved ? QStringList{u"b.jpg"_qs} : (QStringList{u"a.jpg"_qs, u"b.jpg"_qs}));
    QCOMPARE(viewer.window.statusText(), isMoved ? statusFor(u"b.jpg"_qs, 1, 1) : statusFor(u"a.jpg"_qs, 1, 2));
    const QStringList inTheTrash = isMoved ? QStringList{u"a.jpg"_qs} : QStringList();
    QCOMPARE(TrashCan::names().value_or(inTheTrash), inTheTrash);
}

void tst_MainWindow::deleteKey_asksAboveTheWindowWithNoAsTheAnswer()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    Viewer viewer(m_folder->path());
    QString text;
    QWidget *parent = nullptr;
    bool isNoTheDefault = false;
    const BoxGuest guest([&](QDialog &dialog) {
        auto *box = qobject_cast<QMessageBox *>(&dialog);
        text = box->text();
        parent = box->parentWidget();
        isNoTheDefault = box->defaultButton() == buttonOf(dialog, u"No"_qs);
    });
    viewer.press(Qt::Key_Delete);
    QCOMPARE(text, u"Move \"a.jpg\" to the trash?"_qs);
    QCOMPARE(parent, &viewer.window);
    QVERIFY(isNoTheDefault);
}

void tst_MainWindow::nameLikeMarkup_isShownAsItIs()
{
    const QString name = u"<h1>a<br><img src='b'>.jpg"_qs;
    if (!m_folder->addPhoto(name)) {
        QSKIP("No name can look like markup here.");
    }
    Viewer viewer(m_folder->path());
    QCOMPARE(viewer.window.statusText(), statusFor(name, 1, 1));
    QString shown;
    const BoxGuest guest([&](QDialog &box) {
        QTextDocument document; // as the label reads it
        document.setHtml(box.findChild<QLabel *>(u"qt_msgbox_label"_qs)->text());
        shown = document.toPlainText();
        buttonOf(box, u"Yes"_qs)->click();
    });
    viewer.press(Qt::Key_Delete);
    QCOMPARE(shown, u"Move \"%1\" to the trash?"_qs.arg(name));
    QCOMPARE(m_folder->names(), QStringList());
}

void tst_MainWindow::trashedPhotograph_givesWayToAnother_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("trashed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("position");

    const QStringList three{u"a.jpg"_qs, u"b.jpg"_qs, u"c.jpg"_qs};
    QTest::newRow("the next") << three << u"b.jpg"_qs << u"c.jpg"_qs << 2;
    QTest::newRow("the previous one") << three << u"c.jpg"_qs << u"b.jpg"_qs << 2;
    QTest::newRow("none") << QStringList{u"b.jpg"_qs} << u"b.jpg"_qs << QString() << 0;
}

void tst_MainWindow::trashedPhotograph_givesWayToAnother()
{
    QFETCH(const QStringList, names);
    QFETCH(const QString, trashed);
    QFETCH(const QString, shown);
    QFETCH(const int, position);

    for (const QString &name : names) {
        QVERIFY(m_folder->addPhoto(name));
    }
    Viewer viewer(m_folder->filePath(trashed));
    QCOMPARE(viewer.window.currentName(), trashed);
    const QColor ground(0x23, 0x23, 0x23);
    QVERIFY(viewer.colorInTheMiddle() != ground);
    const BoxGuest guest(clicking(u"Yes"_qs));
    viewer.press(Qt::Key_Delete);
    QVERIFY(!m_folder->contains(trashed));
    QCOMPARE(viewer.window.currentName(), shown);
    QCOMPARE(viewer.window.statusText(),
             shown.isEmpty() ? u"No photographs in this folder"_qs : statusFor(shown, position, 2));
    QCOMPARE(viewer.colorInTheMiddle() == ground, shown.isEmpty());
}

void tst_MainWindow::photographThatHasGone_isNotTrashedAndLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
    Viewer viewer(m_folder->path());
    const BoxGuest guest([this](QDialog &box) {
        QVERIFY(m_folder->remove(u"a.jpg"_qs));
        buttonOf(box, u"Yes"_qs)->click();
    });
    viewer.press(Qt::Key_Delete);
    QCOMPARE(viewer.window.statusText(), u"a.jpg can't be moved to the trash"_qs);
    QCOMPARE(viewer.window.currentName(), u"a.jpg"_qs);
    QCOMPARE(log.records().filter(u"WARN "_qs),
             QStringList(u"WARN CPhotoFiles::moveToTrash: %1 could not be moved to the trash"_qs.arg(
                 m_folder->filePath(u"a.jpg"_qs))));
}

void tst_MainWindow::emptyFolder_hasNothingToTrashOrToCopy()
{
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    const BoxGuest guest([](QDialog &) {});
    viewer.press(Qt::Key_Delete);
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(guest.visits(), 0);
    QCOMPARE(viewer.window.statusText(), u"No photographs in this folder"_qs);
}

void tst_MainWindow::openBox_keepsTheGateShut_data()
{
    QTest::addColumn<QByteArray>("command");

    QTest::newRow("move to the trash") << QByteArray("moveToTrash");
    QTest::newRow("save a copy") << QByteArray("saveCopy");
    QTest::newRow("save the print") << QByteArray("savePrint");
    QTest::newRow("open") << QByteArray("open");
}

void tst_MainWindow::openBox_keepsTheGateShut()
{
    QFETCH(const QByteArray, command);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
    Viewer viewer(m_folder->path());
    QString nameAtOnce;
    QString nameAfterAWhile;
    const BoxGuest guest([&](QDialog & /*box*/) {
        viewer.window.nextAction()->trigger();
        nameAtOnce = viewer.window.currentName();
        waitAsLongAsTheGateDoes();
        nameAfterAWhile = viewer.window.currentName();
    });
    QVERIFY(QMetaObject::invokeMethod(&viewer.window, command.constData()));
    QCOMPARE(guest.visits(), 1);
    QCOMPARE(nameAtOnce, u"a.jpg"_qs);
    QCOMPARE(nameAfterAWhile, u"a.jpg"_qs);
    QCOMPARE(viewer.window.currentName(), u"a.jpg"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(viewer.window.statusText(), statusFor(u"b.jpg"_qs, 2, 2), watchdogMs);
}

void tst_MainWindow::copy_hasTheNameThatIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");

    QTest::newRow("plain") << u"b.jpg"_qs << u"b.jpg"_qs;
    QTest::newRow("blank and Cyrillic") << u"\u0444\u043e\u0442\u043e 1.jpg"_qs << u"\u0444\u043e\u0442\u043e 1.jpg"_qs;
    QTest::newRow("another extension") << u"b.bak"_qs << u"b.bak"_qs;
    QTest::newRow("no extension") << u"b"_qs << u"b"_qs;
    QTest::newRow("begins with a device") << u"NULL.jpg"_qs << u"NULL.jpg"_qs;
    QTest::newRow("place markers") << u"%1 %2.jpg"_qs << u"%1 %2.jpg"_qs;
}

void tst_MainWindow::copy_hasTheNameThatIsTyped()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, written);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    const BoxGuest guest(typing(typed));
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(guest.visits(), 1);
    QCOMPARE(viewer.window.statusText(), u"Saved a copy as %1"_qs.arg(written));
    QCOMPARE(m_folder->names().size(), 2);
    QVERIFY(!m_folder->contentOf(u"a.jpg"_qs).isEmpty());
    QCOMPARE(m_folder->contentOf(written), m_folder->contentOf(u"a.jpg"_qs));
    QCOMPARE(viewer.window.currentName(), u"a.jpg"_qs);
}

void tst_MainWindow::copy_wrongNameIsRefused_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("none") << QString();
    QTest::newRow("device") << u"NUL"_qs;
    QTest::newRow("device in small letters") << u"com1"_qs;
    QTest::newRow("colon") << u"a:b.jpg"_qs;
    QTest::newRow("slash") << u"folder/b.jpg"_qs;
    QTest::newRow("backslash") << u"folder\\b.jpg"_qs;
    QTest::newRow("above") << u"../b.jpg"_qs;
    QTest::newRow("above and below") << u"folder/../../b.jpg"_qs;
    QTest::newRow("two dots") << u"a..b.jpg"_qs;
    QTest::newRow("asterisk") << u"*.jpg"_qs;
    QTest::newRow("markup") << u"<b>b</b>.jpg"_qs;
    QTest::newRow("261 characters") << QString(261, u'b');
}

void tst_MainWindow::copy_wrongNameIsRefused()
{
    QFETCH(const QString, name);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addFolder(u"folder"_qs));
    Viewer viewer(m_folder->path());
    QVERIFY(viewer.isUp);
    const BoxGuest guest(typing(name));
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(viewer.window.statusText(), u"\"%1\" can't be the name of a file"_qs.arg(name));
    QCOMPARE(m_folder->names(), (QStringList{u"a.jpg"_qs, u"folder"_qs}));
    QVERIFY(!m_folder->contains(u"folder/b.jpg"_qs));
    QVERIFY(!m_folder->contains(u"../b.jpg"_qs));
}

void tst_MainWindow::copy_existingFileIsKept_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("another file") << u"b.jpg"_qs;
    QTest::newRow("itself") << u"a.jpg"_qs;
    QTest::newRow("folder") << u"folder"_qs;
}

void tst_MainWindow::copy_existingFileIsKept()
{
    QFETCH(const QString, name);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addFile(u"b.jpg"_qs));
    QVERIFY(m_folder->addFolder(u"folder"_qs));
    const QByteArray photo = m_folder->contentOf(u"a.jpg"_qs);
    Viewer viewer(m_folder->path());
    const BoxGuest guest(typing(name));
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(viewer.window.statusText(), u"%1 is there already"_qs.arg(name));
    QCOMPARE(m_folder->names(), (QStringList{u"a.jpg"_qs, u"b.jpg"_qs, u"folder"_qs}));
    QCOMPARE(m_folder->contentOf(u"a.jpg"_qs), photo);
    QCOMPARE(m_folder->contentOf(u"b.jpg"_qs), QByteArray("no photograph"));
}

void tst_MainWindow::copy_proposesANameAndCanBeCancelled_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("proposal");

    QTest::newRow("plain") << u"a.jpg"_qs << u"a copy.jpg"_qs;
    QTest::newRow("dots and markers") << u"a.%1.b.JPG"_qs << u"a.%1.b copy.JPG"_qs;
    QTest::newRow("no extension") << u"a"_qs << u"a copy"_qs;
}

void tst_MainWindow::copy_proposesANameAndCanBeCancelled()
{
    QFETCH(const QString, name);
    QFETCH(const QString, proposal);

    QVERIFY(m_folder->addPhoto(name));
    Viewer viewer(m_folder->filePath(name));
    QString proposed;
    QWidget *parent = nullptr;
    Qt::WindowModality modality = Qt::NonModal;
    const BoxGuest guest([&](QDialog &box) {
        proposed = qobject_cast<QInputDialog *>(&box)->textValue();
        parent = box.parentWidget();
        modality = box.windowModality();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(proposed, proposal);
    QCOMPARE(parent, &viewer.window);
    QCOMPARE(modality, Qt::WindowModal);
    QCOMPARE(m_folder->names(), QStringList(name));
    QCOMPARE(viewer.window.statusText(), statusFor(name, 1, 1));
}

void tst_MainWindow::copy_withoutRoomIsRefused()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    const qint64 space = availableDiskSpace(m_folder->path());
    QVERIFY(space > 0);
    QFile photo(m_folder->filePath(u"a.jpg"_qs));
    if (!photo.resize(2 * space + 1)) {
        QSKIP("No file here may be larger than the room for it.");
    }
    QVERIFY(m_folder->addFile(u"b.txt"_qs)); // so that nothing is copied here, whatever goes wrong
    Viewer viewer(m_folder->path());
    {
        const BoxGuest guest(typing(u"b.txt"_qs));
        viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    }
    QCOMPARE(viewer.window.statusText(), u"There is no room for a copy of a.jpg"_qs);
    QCOMPARE(m_folder->names(), (QStringList{u"a.jpg"_qs, u"b.txt"_qs}));
}

void tst_MainWindow::copy_ofAPhotographThatHasGoneIsTold()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    Viewer viewer(m_folder->path());
    const BoxGuest guest([this](QDialog &box) {
        QVERIFY(m_folder->remove(u"a.jpg"_qs));
        typing(u"b.jpg"_qs)(box);
    });
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(viewer.window.statusText(), u"a.jpg can't be copied to b.jpg"_qs);
    QCOMPARE(m_folder->names(), QStringList());
    QCOMPARE(log.records().filter(u"WARN "_qs),
             QStringList(u"WARN CPhotoFiles::copy: %1 could not be copied to %2"_qs.arg(
                 m_folder->filePath(u"a.jpg"_qs), m_folder->filePath(u"b.jpg"_qs))));
}

void tst_MainWindow::copy_isMetOnTheWay()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    Viewer viewer(m_folder->path());
    const BoxGuest guest([](QDialog &box) { QTest::keyClick(&box, Qt::Key_Return); }); // as proposed
    viewer.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(viewer.window.statusText(), u"Saved a copy as a copy.jpg"_qs);
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"a copy.jpg"_qs, 1, 2));
    viewer.press(Qt::Key_Right);
    QCOMPARE(viewer.window.statusText(), statusFor(u"a.jpg"_qs, 2, 2));
}

void tst_MainWindow::units_changeTheTextAtOnce_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("form");

    QTest::newRow("pixels") << 0 << u"Pixels"_qs << u"400 x 300 px"_qs;
    QTest::newRow("inches") << 1 << u"Inches"_qs << u"\\d+\\.\\d\\d x \\d+\\.\\d\\d in"_qs;
    QTest::newRow("centimetres") << 2 << u"Centimetres"_qs << u"\\d+\\.\\d x \\d+\\.\\d cm"_qs;
    QTest::newRow("millimetres") << 3 << u"Millimetres"_qs << u"\\d+ x \\d+ mm"_qs;
}

void tst_MainWindow::units_changeTheTextAtOnce()
{
    QFETCH(const int, unit);
    QFETCH(const QString, name);
    QFETCH(const QString, form);

    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs, QSize(400, 300)));
    CSettings().setValue(imageSizeUnitsKey, (unit + 1) % 4);
    Viewer viewer(m_folder->path());
    QCOMPARE(viewer.unit(unit)->text().remove(u'&'), name);
    viewer.unit(unit)->trigger();
    QCOMPARE(CSettings().value(imageSizeUnitsKey).toInt(), unit);
    const QRegularExpression expected(u"^1 of 1: a\\.jpg, "_qs + form + u", \\d+(\\.\\d)?K?B$");
    QVERIFY2(expected.match(viewer.window.statusText()).hasMatch(), qPrintable(viewer.window.statusText()));
    QVERIFY(viewer.window.statusText().contains(sizeToString(QSize(400, 300))));
}

void tst_MainWindow::units_areStoredAndMarked()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    {
        const Viewer first(m_folder->path());
        QVERIFY(first.unit(0)->isChecked());
        first.unit(3)->trigger();
        QVERIFY(first.unit(3)->isChecked());
        QVERIFY(!first.unit(0)->isChecked());
    }
    const Viewer second(m_folder->path());
    QVERIFY(second.unit(3)->isChecked());
    QVERIFY(second.window.statusText().contains(u" mm, "));
}

void tst_MainWindow::unitChosenWhileLoading_comesLater()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    Viewer viewer(m_folder->path());
    connect(
        &viewer.window, &CMainWindow::loadingBegun, this, [&viewer] { viewer.unit(2)->trigger(); },
        Qt::SingleShotConnection);
    viewer.window.showNext();
    QCOMPARE(viewer.window.statusText(), statusFor(u"a.jpg"_qs, 1, 1));
    QCOMPARE(CSettings().value(imageSizeUnitsKey, 0).toInt(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.window.statusText().contains(u" cm, "), watchdogMs);
    QVERIFY(viewer.unit(2)->isChecked());
}

void tst_MainWindow::unitChosenWhileLoading_isForgottenForALaterCommand()
{
    QVERIFY(m_folder->addPhoto(u"a.jpg"_qs));
    QVERIFY(m_folder->addPhoto(u"b.jpg"_qs));
    Viewer viewer(m_folder->path());
    connect(
        &viewer.window, &CMainWindow::loadingBegun, this,
        [&viewer] {
            viewer.unit(2)->trigger();
            viewer.window.nextAction()->trigger();
        },
        Qt::SingleShotConnection);
    viewer.window.showCurrent();
    QTRY_COMPARE_WITH_TIMEOUT(viewer.window.statusText(), statusFor(u"b.jpg"_qs, 2, 2), watchdogMs);
    auto *menu = viewer.window.findChild<CUnitMenu *>();
    menu->popup(QPoint(0, 0));
    QVERIFY(viewer.unit(0)->isChecked());
    QVERIFY(!viewer.unit(2)->isChecked());
    menu->hide();
    QCOMPARE(CSettings().value(imageSizeUnitsKey, 0).toInt(), 0);
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_MainWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_MainWindow.moc"

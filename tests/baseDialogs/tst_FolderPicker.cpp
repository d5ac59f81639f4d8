// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/FolderPicker_p.h"

#include "baseDialogs/OpenDialog.h"
#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QFileSystemModel>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <memory>

using namespace ZYX_zglv6;
using TestSupport::buttonOf;

namespace {

const QString standardFilter = QStringLiteral("Image Files (*.tiff *.tif *.jpeg *.jpg)");

QTreeView *viewOf(const FolderPicker &picker)
{
    return picker.findChild<QTreeView *>(QStringLiteral("treeView"));
}

QModelIndex rowOf(const FolderPicker &picker, const QString &name)
{
    const QTreeView *view = viewOf(picker);
    const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
    return view->model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
}

QStringList namesIn(const FolderPicker &picker)
{
    const QTreeView *view = viewOf(picker);
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    }
    names.sort();
    return names;
}

void click(const FolderPicker &picker, const QString &name)
{
    QTRY_VERIFY(rowOf(picker, name).isValid());
    const QPoint place = viewOf(picker)->visualRect(rowOf(picker, name)).center();
    QTest::mouseClick(viewOf(picker)->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/*! As from the mouse: a double click is the second of two. */
void doubleClick(const FolderPicker &picker, const QString &name)
{
    click(picker, name);
    const QPoint place = viewOf(picker)->visualRect(rowOf(picker, name)).center();
    QTest::mouseDClick(viewOf(picker)->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

} // namespace

class tst_FolderPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void shown_areFoldersAndMatchingFiles_data();
    void shown_areFoldersAndMatchingFiles();
    void title_whenEmpty_isTheDialogsOwn();
    void button_isTheOneThatAccepts();
    void directory_thatIsMissing_isTheDialogsOwnPlace_data();
    void directory_thatIsMissing_isTheDialogsOwnPlace();
    void release_withSelectedFile_answersTheFile();
    void release_withSelectedFolder_answersTheFolder();
    void release_withTypedName_answersWhatItSelects();
    void release_withoutSelection_answersTheShownFolder();
    void release_afterEnteringAFolder_answersThatFolder();
    void release_elsewhere_isRefused_data();
    void release_elsewhere_isRefused();
    void keyboardOnTheButton_isRefused_data();
    void keyboardOnTheButton_isRefused();
    void enterOnAFile_isRefused_data();
    void enterOnAFile_isRefused();
    void enterOnAFolder_entersIt();
    void enterOnATypedFolder_entersIt();
    void doubleClickOnAFile_isRefused();
    void clickByProgram_isRefused();
    void closing_answersEmpty_data();
    void closing_answersEmpty();
    void chooseInFolderPicker_answersWhatWasChosen();
    void chooseInFolderPicker_whenTheParentGoes_answersEmpty();

private:
    std::unique_ptr<FolderPicker> makePicker(const QString &title, const QString &directory) const;
    void goOnAndChoose();

    TestSupport::Sandbox m_sandbox;
    QString m_photos;
    std::unique_ptr<FolderPicker> m_picker;
};

void tst_FolderPicker::initTestCase()
{
    m_photos = m_sandbox.filePath(u"photos"_qs);
    QVERIFY(QDir().mkpath(m_photos + u"/roll.1"_qs));
    for (const char *name : {"a.tif", "B.JPG", "c.nef", "notes.txt", "roll.1/inner.tif"}) {
        QFile file(m_photos + u'/' + QString::fromLatin1(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void tst_FolderPicker::init()
{
    m_picker = makePicker(u"Batch"_qs, m_photos);
    m_picker->show();
    QVERIFY(QTest::qWaitForWindowActive(m_picker.get()));
    QTRY_VERIFY(rowOf(*m_picker, u"a.tif"_qs).isValid());
}

void tst_FolderPicker::cleanup()
{
    m_picker.reset();
}

std::unique_ptr<FolderPicker> tst_FolderPicker::makePicker(const QString &title, const QString &directory) const
{
    return std::make_unique<FolderPicker>(nullptr, title, directory, standardFilter, u"Select Folder"_qs);
}

/*! The dialog is still open and works. */
void tst_FolderPicker::goOnAndChoose()
{
    QVERIFY(m_picker->isVisible());
    QCOMPARE(m_picker->answer(), QString());
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QVERIFY(!m_picker->isVisible());
    QVERIFY(!m_picker->answer().isEmpty());
}

void tst_FolderPicker::shown_areFoldersAndMatchingFiles_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("standard") << standardFilter << QStringList{u"B.JPG"_qs, u"a.tif"_qs, u"roll.1"_qs};
    QTest::newRow("raw") << u"Image Files (*.tif *.nef)"_qs << QStringList{u"a.tif"_qs, u"c.nef"_qs, u"roll.1"_qs};
}

void tst_FolderPicker::shown_areFoldersAndMatchingFiles()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, names);
    FolderPicker picker(nullptr, u"Batch"_qs, m_photos, filter, u"Select Folder"_qs);
    picker.show();
    QTRY_COMPARE(namesIn(picker), names);
    QCOMPARE(picker.windowTitle(), u"Batch"_qs);
    QCOMPARE(picker.nameFilters(), QStringList{filter});
    QCOMPARE(picker.directory().absolutePath(), m_photos);
    QVERIFY(picker.testOption(QFileDialog::DontUseNativeDialog));
}

void tst_FolderPicker::title_whenEmpty_isTheDialogsOwn()
{
    QFileDialog plain;
    plain.setOption(QFileDialog::DontUseNativeDialog);
    plain.setFileMode(QFileDialog::ExistingFile);
    plain.show();
    const auto picker = makePicker(QString(), m_photos);
    picker->show();
    QVERIFY(!plain.windowTitle().isEmpty());
    QCOMPARE(picker->windowTitle(), plain.windowTitle());
}

void tst_FolderPicker::button_isTheOneThatAccepts()
{
    const auto *box = m_picker->findChild<QDialogButtonBox *>();
    QVERIFY(buttonOf(*m_picker)->isVisible());
    QVERIFY(buttonOf(*m_picker)->isDefault());
    QVERIFY(!box->button(QDialogButtonBox::Open));
    QVERIFY(box->button(QDialogButtonBox::Cancel)->isVisible());
    click(*m_picker, u"roll.1"_qs); // at which a dialog for files says "Open"
    QVERIFY(buttonOf(*m_picker)->isVisible());
    QVERIFY(buttonOf(*m_picker)->isEnabled());
}

void tst_FolderPicker::directory_thatIsMissing_isTheDialogsOwnPlace_data()
{
    QTest::addColumn<QString>("directory");
    QTest::newRow("missing") << u"/photos/there is none"_qs;
    QTest::newRow("empty") << QString();
}

void tst_FolderPicker::directory_thatIsMissing_isTheDialogsOwnPlace()
{
    QFETCH(const QString, directory);
    const QString ownPlace = QFileDialog().directory().absolutePath();
    const auto picker = makePicker(u"Batch"_qs, directory);
    picker->show();
    QVERIFY(picker->isVisible());
    QCOMPARE(picker->directory().absolutePath(), ownPlace);
}

void tst_FolderPicker::release_withSelectedFile_answersTheFile()
{
    click(*m_picker, u"a.tif"_qs);
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QVERIFY(!m_picker->isVisible());
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/a.tif"_qs));
}

void tst_FolderPicker::release_withSelectedFolder_answersTheFolder()
{
    click(*m_picker, u"roll.1"_qs);
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QVERIFY(!m_picker->isVisible());
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/roll.1"_qs));
}

void tst_FolderPicker::release_withTypedName_answersWhatItSelects()
{
    QTest::keyClicks(m_picker->findChild<QLineEdit *>(u"fileNameEdit"_qs), u"a.tif"_qs);
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/a.tif"_qs));
}

void tst_FolderPicker::release_withoutSelection_answersTheShownFolder()
{
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QVERIFY(!m_picker->isVisible());
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos));
}

void tst_FolderPicker::release_afterEnteringAFolder_answersThatFolder()
{
    doubleClick(*m_picker, u"roll.1"_qs);
    QVERIFY(m_picker->isVisible());
    QTRY_VERIFY(rowOf(*m_picker, u"inner.tif"_qs).isValid());
    QTest::mouseClick(buttonOf(*m_picker), Qt::LeftButton);
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/roll.1"_qs));
}

void tst_FolderPicker::release_elsewhere_isRefused_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("isInside");
    QTest::newRow("other button") << Qt::RightButton << true;
    QTest::newRow("drawn off the button") << Qt::LeftButton << false;
}

void tst_FolderPicker::release_elsewhere_isRefused()
{
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const bool, isInside);
    QPushButton *const pressed = buttonOf(*m_picker);
    const QPoint inside = pressed->rect().center();
    QTest::mousePress(pressed, button, Qt::NoModifier, inside);
    QTest::mouseRelease(pressed, button, Qt::NoModifier, isInside ? inside : QPoint(-5, -5));
    goOnAndChoose();
}

void tst_FolderPicker::keyboardOnTheButton_isRefused_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("selected");
    QTest::newRow("Space with nothing") << Qt::Key_Space << QString();
    QTest::newRow("Return with nothing") << Qt::Key_Return << QString();
    QTest::newRow("Enter with nothing") << Qt::Key_Enter << QString();
    QTest::newRow("Space with a file") << Qt::Key_Space << u"a.tif"_qs;
    QTest::newRow("Return with a file") << Qt::Key_Return << u"a.tif"_qs;
    QTest::newRow("Enter with a file") << Qt::Key_Enter << u"a.tif"_qs;
}

void tst_FolderPicker::keyboardOnTheButton_isRefused()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, selected);
    if (!selected.isEmpty()) {
        click(*m_picker, selected);
    }
    buttonOf(*m_picker)->setFocus();
    QTest::keyClick(buttonOf(*m_picker), key);
    goOnAndChoose();
}

void tst_FolderPicker::enterOnAFile_isRefused_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("inList");
    QTest::newRow("Return in the list") << Qt::Key_Return << true;
    QTest::newRow("Enter in the list") << Qt::Key_Enter << true;
    QTest::newRow("Return behind the name") << Qt::Key_Return << false;
    QTest::newRow("Enter behind the name") << Qt::Key_Enter << false;
}

void tst_FolderPicker::enterOnAFile_isRefused()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const bool, inList);
    click(*m_picker, u"a.tif"_qs);
    auto *edit = m_picker->findChild<QLineEdit *>(u"fileNameEdit"_qs);
    QCOMPARE(edit->text(), u"a.tif"_qs);
    QTest::keyClick(inList ? static_cast<QWidget *>(viewOf(*m_picker)) : edit, key);
    goOnAndChoose();
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/a.tif"_qs));
}

void tst_FolderPicker::enterOnAFolder_entersIt()
{
    click(*m_picker, u"roll.1"_qs);
    QTest::keyClick(viewOf(*m_picker), Qt::Key_Return);
    QCOMPARE(m_picker->directory().absolutePath(), QString(m_photos + u"/roll.1"_qs));
    goOnAndChoose();
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/roll.1"_qs));
}

void tst_FolderPicker::enterOnATypedFolder_entersIt()
{
    auto *edit = m_picker->findChild<QLineEdit *>(u"fileNameEdit"_qs);
    QTest::keyClicks(edit, u"roll.1"_qs);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(m_picker->directory().absolutePath(), QString(m_photos + u"/roll.1"_qs));
    goOnAndChoose();
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/roll.1"_qs));
}

void tst_FolderPicker::doubleClickOnAFile_isRefused()
{
    doubleClick(*m_picker, u"a.tif"_qs);
    goOnAndChoose();
    QCOMPARE(m_picker->answer(), QDir::toNativeSeparators(m_photos + u"/a.tif"_qs));
}

void tst_FolderPicker::clickByProgram_isRefused()
{
    click(*m_picker, u"a.tif"_qs);
    buttonOf(*m_picker)->click();
    goOnAndChoose();
}

void tst_FolderPicker::closing_answersEmpty_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("close button") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("Cancel") << 2;
}

void tst_FolderPicker::closing_answersEmpty()
{
    QFETCH(const int, way);
    click(*m_picker, u"a.tif"_qs);
    if (way == 0) {
        m_picker->close();
    } else if (way == 1) {
        QTest::keyClick(m_picker.get(), Qt::Key_Escape);
    } else {
        QTest::mouseClick(m_picker->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    }
    QVERIFY(!m_picker->isVisible());
    QCOMPARE(m_picker->answer(), QString());
}

void tst_FolderPicker::chooseInFolderPicker_answersWhatWasChosen()
{
    QWidget parent;
    QPointer<FolderPicker> shown;
    QTimer::singleShot(0, &parent, [&] {
        shown = parent.findChild<FolderPicker *>();
        QVERIFY(shown);
        QVERIFY(shown->isModal());
        QTest::mouseClick(buttonOf(*shown), Qt::LeftButton);
    });
    QCOMPARE(chooseInFolderPicker(&parent, QString(), m_photos, standardFilter, u"Select Folder"_qs),
             QDir::toNativeSeparators(m_photos));
    QVERIFY(!shown); // nothing of it is left
}

void tst_FolderPicker::chooseInFolderPicker_whenTheParentGoes_answersEmpty()
{
    auto parent = std::make_unique<QWidget>();
    QTimer::singleShot(0, m_picker.get(), [&parent] { parent.reset(); });
    QCOMPARE(chooseInFolderPicker(parent.get(), QString(), m_photos, standardFilter, u"Select Folder"_qs), QString());
    QVERIFY(!parent);
}

QTEST_MAIN(tst_FolderPicker)
#include "tst_FolderPicker.moc"

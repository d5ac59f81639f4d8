// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/FakeFileDialog_win.h"
#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <memory>

using namespace ZYX_zglv6;
using TestSupport::FakeFileDialog;

namespace {

const QString standardTypes = QStringLiteral("SetFileTypes 1 Image Files|*.tiff;*.tif;*.jpeg;*.jpg");
const QString rawTypes
    = QStringLiteral(";*.crw;*.mrw;*.arw;*.raf;*.pef;*.orf;*.ori;*.rw2;*.rwl;*.nrw;*.srw;*.cr2;*.cr3;"
                     "*.nef;*.dng;*.zyx;*.3fr");

QString ask(QWidget &parent, bool withRawFiles, const QString &title, const QString &directory)
{
    return Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(&parent, withRawFiles, title, directory, {});
}

LRESULT releaseMouse(const FakeFileDialog &fake)
{
    return SendMessageW(fake.button, WM_LBUTTONUP, 0, 12);
}

} // namespace

/*! The calls of the folder dialog, one by one, on a dialog of the test's own in the place of the system's. */
class tst_FolderDialogSteps_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calls_areInOrder_data();
    void calls_areInOrder();
    void failingStep_answersEmptyAndReleases_data();
    void failingStep_answersEmptyAndReleases();
    void failingFileTypes_areIgnored();
    void handler_answersItsInterfaces();
    void handler_answersItsEvents();
    void release_answers_data();
    void release_answers();
    void release_beforeAnyPath_goesToTheButton();
    void otherMessages_goToTheButton();
    void button_isSubclassedOnce();
    void button_isSubclassedByASelectionToo();
    void selection_thatCantBeAskedFor_staysAsItWas();
    void nextDialog_startsAnew();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_FolderDialogSteps_win::calls_areInOrder_data()
{
    QTest::addColumn<bool>("withRawFiles");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("directory");
    const QString folder = m_sandbox.filePath(u"photos \u00fc"_qs);
    QVERIFY(QDir().mkpath(folder));
    QTest::newRow("standard") << false << u"Batch"_qs << folder;
    QTest::newRow("raw") << true << u"Batch"_qs << folder;
    QTest::newRow("no title") << false << QString() << folder;
    QTest::newRow("no folder") << false << u"Batch"_qs << QString();
    QTest::newRow("missing folder") << false << u"Batch"_qs << QString(folder + u"/none"_qs);
}

void tst_FolderDialogSteps_win::calls_areInOrder()
{
    QFETCH(const bool, withRawFiles);
    QFETCH(const QString, title);
    QFETCH(const QString, directory);

    QWidget parent;
    FakeFileDialog fake;
    QCOMPARE(ask(parent, withRawFiles, title, directory), QString());
    QStringList expected{u"CoCreateInstance"_qs, u"Advise"_qs};
    expected += withRawFiles ? QString(standardTypes + rawTypes) : standardTypes;
    expected += u"SetOkButtonLabel Select Folder"_qs;
    if (!title.isEmpty()) {
        expected += QString(u"SetTitle "_qs + title);
    }
    if (QDir(directory).exists() && !directory.isEmpty()) {
        expected += QString(u"SetFolder "_qs + QDir::toNativeSeparators(directory));
    }
    expected += {u"GetOptions"_qs, u"SetOptions1 48"_qs, u"SetOptions2 28"_qs}; // the second without the first's flag
    expected += QString(u"Show "_qs + QString::number(parent.winId()));
    expected += u"Unadvise 4711"_qs;
    QCOMPARE(fake.calls, expected);
    QCOMPARE(fake.objects, 0);
}

void tst_FolderDialogSteps_win::failingStep_answersEmptyAndReleases_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<bool>("isAdvised");
    QTest::newRow("CoCreateInstance") << u"CoCreateInstance"_qs << false;
    QTest::newRow("Advise") << u"Advise"_qs << false;
    QTest::newRow("SetOkButtonLabel") << u"SetOkButtonLabel"_qs << true;
    QTest::newRow("SetTitle") << u"SetTitle"_qs << true;
    QTest::newRow("SetFolder") << u"SetFolder"_qs << true;
    QTest::newRow("GetOptions") << u"GetOptions"_qs << true;
    QTest::newRow("SetOptions, first") << u"SetOptions1"_qs << true;
    QTest::newRow("SetOptions, second") << u"SetOptions2"_qs << true;
}

void tst_FolderDialogSteps_win::failingStep_answersEmptyAndReleases()
{
    QFETCH(const QString, step);
    QFETCH(const bool, isAdvised);

    QWidget parent;
    FakeFileDialog fake;
    fake.failing = step;
    bool isShown = false;
    fake.whileShown = [&isShown](IFileDialog *, IFileDialogEvents *) { isShown = true; };
    QCOMPARE(ask(parent, false, u"Batch"_qs, m_sandbox.filePath(QString())), QString());
    QVERIFY(!isShown);
    QVERIFY(fake.calls.join(u'\n').contains(step));
    QCOMPARE(fake.calls.contains(u"Unadvise 4711"_qs), isAdvised);
    QCOMPARE(fake.objects, 0);
}

void tst_FolderDialogSteps_win::failingFileTypes_areIgnored()
{
    QWidget parent;
    FakeFileDialog fake;
    fake.failing = u"SetFileTypes"_qs;
    bool isShown = false;
    fake.whileShown = [&isShown](IFileDialog *, IFileDialogEvents *) { isShown = true; };
    ask(parent, false, u"Batch"_qs, QString());
    QVERIFY(isShown);
}

void tst_FolderDialogSteps_win::handler_answersItsInterfaces()
{
    QWidget parent;
    FakeFileDialog fake;
    HRESULT other = S_OK;
    int found = 0;
    fake.whileShown = [&](IFileDialog *, IFileDialogEvents *events) {
        for (const IID &id : {IID_IFileDialogEvents, IID_IUnknown}) {
            void *object = nullptr;
            if (SUCCEEDED(events->QueryInterface(id, &object)) && object == events) {
                ++found;
                events->Release();
            }
        }
        void *object = nullptr;
        other = events->QueryInterface(IID_IFileDialog, &object);
        // the one that made it, its interface, and that of the dialog; one more and back
        const ULONG references = events->AddRef();
        QCOMPARE(references, ULONG(4));
        QCOMPARE(events->Release(), ULONG(3));
    };
    ask(parent, false, QString(), QString());
    QCOMPARE(found, 2);
    QCOMPARE(other, HRESULT(E_NOINTERFACE));
}

void tst_FolderDialogSteps_win::handler_answersItsEvents()
{
    QWidget parent;
    FakeFileDialog fake;
    fake.folder = u"C:\\photos"_qs;
    QList<HRESULT> answers;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        FDE_SHAREVIOLATION_RESPONSE violation = FDESVR_DEFAULT;
        FDE_OVERWRITE_RESPONSE overwrite = FDEOR_DEFAULT;
        answers.append(events->OnFileOk(dialog));
        answers.append(events->OnFolderChanging(dialog, nullptr));
        answers.append(events->OnFolderChange(dialog));
        answers.append(events->OnSelectionChange(dialog));
        answers.append(events->OnShareViolation(dialog, nullptr, &violation));
        answers.append(events->OnTypeChange(dialog));
        answers.append(events->OnOverwrite(dialog, nullptr, &overwrite));
        answers.append(events->OnFileOk(dialog));
        releaseMouse(fake);
        answers.append(events->OnFileOk(dialog));
    };
    QCOMPARE(ask(parent, false, QString(), QString()), u"C:\\photos"_qs);
    QCOMPARE(answers, QList<HRESULT>({S_FALSE, S_OK, S_OK, S_OK, S_OK, S_OK, S_OK, S_FALSE, S_OK}));
}

void tst_FolderDialogSteps_win::release_answers_data()
{
    QTest::addColumn<std::optional<QString>>("folder");
    QTest::addColumn<std::optional<QString>>("selection");
    QTest::addColumn<QString>("answer");
    using Path = std::optional<QString>;
    QTest::newRow("folder") << Path(u"C:\\p"_qs) << Path() << u"C:\\p"_qs;
    QTest::newRow("selection") << Path() << Path(u"C:\\p\\a.nef"_qs) << u"C:\\p\\a.nef"_qs;
    QTest::newRow("both: the selection") << Path(u"C:\\p"_qs) << Path(u"C:\\p\\\u00fc.nef"_qs)
                                         << u"C:\\p\\\u00fc.nef"_qs;
}

void tst_FolderDialogSteps_win::release_answers()
{
    QFETCH(const std::optional<QString>, folder);
    QFETCH(const std::optional<QString>, selection);
    QFETCH(const QString, answer);

    QWidget parent;
    FakeFileDialog fake;
    fake.folder = folder;
    fake.selection = selection;
    LRESULT result = -1;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        events->OnSelectionChange(dialog);
        result = releaseMouse(fake);
    };
    QCOMPARE(ask(parent, false, QString(), QString()), answer);
    QCOMPARE(result, LRESULT(0));
    QVERIFY(fake.isClosed);
    QVERIFY(fake.buttonReleases.isEmpty());
    QCOMPARE(fake.objects, 0);
}

void tst_FolderDialogSteps_win::release_beforeAnyPath_goesToTheButton()
{
    QWidget parent;
    FakeFileDialog fake;
    LRESULT result = -1;
    HRESULT fileOk = S_OK;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog); // a place without a path
        result = releaseMouse(fake);
        fileOk = events->OnFileOk(dialog);
    };
    QCOMPARE(ask(parent, false, QString(), QString()), QString());
    QCOMPARE(result, LRESULT(7));
    QCOMPARE(fake.buttonReleases, QList<LPARAM>{12});
    QVERIFY(!fake.isClosed);
    QCOMPARE(fileOk, S_FALSE);
}

void tst_FolderDialogSteps_win::otherMessages_goToTheButton()
{
    QWidget parent;
    FakeFileDialog fake;
    fake.folder = u"C:\\p"_qs;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        for (const UINT message : {UINT(WM_LBUTTONDOWN), UINT(WM_KEYDOWN), UINT(WM_KEYUP), UINT(WM_RBUTTONUP)}) {
            SendMessageW(fake.button, message, VK_RETURN, 0);
        }
    };
    QCOMPARE(ask(parent, false, QString(), QString()), QString());
    QVERIFY(!fake.isClosed);
}

void tst_FolderDialogSteps_win::button_isSubclassedOnce()
{
    QWidget parent;
    FakeFileDialog fake;
    const LONG_PTR before = GetWindowLongPtrW(fake.button, GWLP_WNDPROC);
    LONG_PTR first = 0;
    LONG_PTR second = 0;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        first = GetWindowLongPtrW(fake.button, GWLP_WNDPROC);
        events->OnFolderChange(dialog);
        events->OnSelectionChange(dialog);
        second = GetWindowLongPtrW(fake.button, GWLP_WNDPROC);
        releaseMouse(fake); // a button subclassed twice would call itself for ever
    };
    ask(parent, false, QString(), QString());
    QVERIFY(first != before);
    QCOMPARE(second, first);
    QCOMPARE(fake.calls.count(u"GetWindow"_qs), 1);
}

void tst_FolderDialogSteps_win::button_isSubclassedByASelectionToo()
{
    QWidget parent;
    FakeFileDialog fake;
    fake.selection = u"C:\\a.nef"_qs;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnSelectionChange(dialog);
        releaseMouse(fake);
    };
    QCOMPARE(ask(parent, false, QString(), QString()), u"C:\\a.nef"_qs);
}

void tst_FolderDialogSteps_win::selection_thatCantBeAskedFor_staysAsItWas()
{
    QWidget parent;
    FakeFileDialog fake;
    fake.folder = u"C:\\p"_qs;
    fake.selection = u"C:\\p\\a.nef"_qs;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        events->OnSelectionChange(dialog);
        fake.hasSelection = false;
        events->OnSelectionChange(dialog);
        releaseMouse(fake);
    };
    QCOMPARE(ask(parent, false, QString(), QString()), u"C:\\p\\a.nef"_qs);
}

void tst_FolderDialogSteps_win::nextDialog_startsAnew()
{
    QWidget parent;
    for (int round = 0; round < 2; ++round) {
        auto fake = std::make_unique<FakeFileDialog>();
        fake->folder = u"C:\\p"_qs;
        fake->selection = u"C:\\p\\a.nef"_qs;
        fake->whileShown = [&fake](IFileDialog *dialog, IFileDialogEvents *events) {
            QCOMPARE(events->OnFileOk(dialog), S_FALSE);
            events->OnFolderChange(dialog);
            events->OnSelectionChange(dialog);
            releaseMouse(*fake);
        };
        QCOMPARE(ask(parent, false, QString(), QString()), u"C:\\p\\a.nef"_qs);
        fake.reset();

        FakeFileDialog next;
        next.folder = u"C:\\q"_qs;
        next.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
            events->OnFolderChange(dialog);
            releaseMouse(next);
        };
        QCOMPARE(ask(parent, false, QString(), QString()), u"C:\\q"_qs); // nothing of the last one's selection
    }
}

QTEST_MAIN(tst_FolderDialogSteps_win)
#include "tst_FolderDialogSteps_win.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/FakeFileDialog_win.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <memory>

using namespace ZYX_zglv6;
using TestSupport::FakeFileDialog;
using TestSupport::isAllocated;
using TestSupport::WindowMessage;

namespace {

const QString standardTypes = QStringLiteral("SetFileTypes 1 Image Files|*.tiff;*.tif;*.jpeg;*.jpg");
const QString rawTypes
    = QStringLiteral(";*.crw;*.mrw;*.arw;*.raf;*.pef;*.orf;*.ori;*.rw2;*.rwl;*.nrw;*.srw;*.cr2;*.cr3;"
                     "*.nef;*.dng;*.zyx;*.3fr");

QString ask(QWidget &parent, bool withRawFiles, const QString &title, const QString &directory)
{
    return Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(&parent, withRawFiles, title, directory, {});
}

QString ask()
{
    QWidget parent;
    return ask(parent, false, QString(), QString());
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
    void handler_goesWithItsLastReference();
    void handler_answersItsEvents();
    void release_answers_data();
    void release_answers();
    void otherMessages_goToTheButton_data();
    void otherMessages_goToTheButton();
    void release_onAnotherWindow_goesToTheButton();
    void button_isSubclassedOnce();
    void nextDialog_startsAnew_data();
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
    QTest::addColumn<bool>("hasHandler");
    QTest::addColumn<bool>("isAdvised");
    QTest::newRow("CoCreateInstance") << u"CoCreateInstance"_qs << false << false;
    QTest::newRow("Advise") << u"Advise"_qs << true << false;
    QTest::newRow("SetOkButtonLabel") << u"SetOkButtonLabel"_qs << true << true;
    QTest::newRow("SetTitle") << u"SetTitle"_qs << true << true;
    QTest::newRow("SetFolder") << u"SetFolder"_qs << true << true;
    QTest::newRow("GetOptions") << u"GetOptions"_qs << true << true;
    QTest::newRow("SetOptions, first") << u"SetOptions1"_qs << true << true;
    QTest::newRow("SetOptions, second") << u"SetOptions2"_qs << true << true;
}

void tst_FolderDialogSteps_win::failingStep_answersEmptyAndReleases()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, step);
    QFETCH(const bool, hasHandler);
    QFETCH(const bool, isAdvised);

    QWidget parent;
    FakeFileDialog fake;
    fake.failing = step;
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const TestSupport::AssertionReports reports;
    IFileDialogEvents *handler = nullptr;
    fake.whenAdvised = [&handler](IFileDialogEvents *events) {
        events->AddRef();
        handler = events;
    };
    bool isShown = false;
    fake.whileShown = [&isShown](IFileDialog *, IFileDialogEvents *) { isShown = true; };
    QCOMPARE(ask(parent, false, u"Batch"_qs, m_sandbox.filePath(QString())), QString());
    QCOMPARE(reports.texts(), QStringList());
    QCOMPARE(log.records(), QStringList());
    QVERIFY(!isShown);
    QVERIFY(fake.calls.join(u'\n').contains(step));
    QCOMPARE(fake.calls.contains(u"Unadvise 4711"_qs), isAdvised);
    QCOMPARE(fake.objects, 0);
    QCOMPARE(handler != nullptr, hasHandler);
    if (hasHandler) {
        QCOMPARE(handler->Release(), ULONG(0)); // the test's own was the last
    }
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
    ask();
    QCOMPARE(found, 2);
    QCOMPARE(other, HRESULT(E_NOINTERFACE));
}

void tst_FolderDialogSteps_win::handler_goesWithItsLastReference()
{
    FakeFileDialog fake;
    IFileDialogEvents *handler = nullptr;
    fake.whileShown = [&handler](IFileDialog *, IFileDialogEvents *events) {
        events->AddRef();
        handler = events;
    };
    ask();
    QVERIFY(isAllocated(handler));
    const ULONG references = handler->Release();
    const bool isLeft = isAllocated(handler);
    QCOMPARE(references, ULONG(0));
    QVERIFY(!isLeft);
}

void tst_FolderDialogSteps_win::handler_answersItsEvents()
{
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
    QCOMPARE(ask(), u"C:\\photos"_qs);
    QCOMPARE(answers, QList<HRESULT>({S_FALSE, S_OK, S_OK, S_OK, S_OK, S_OK, S_OK, S_FALSE, S_OK}));
}

void tst_FolderDialogSteps_win::release_answers_data()
{
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QString>("answer"); // none: the button's own procedure gets the release
    const QString folder = u"folder C:\\p"_qs;
    const QString file = u"selection C:\\p\\\u00fc.nef"_qs;
    const QString noFolder = u"folder"_qs; // a place without a path
    const QString noFile = u"selection"_qs;
    const QString answer = u"C:\\p\\\u00fc.nef"_qs;
    QTest::newRow("folder") << QStringList{folder} << u"C:\\p"_qs;
    QTest::newRow("folder, then thing without path") << QStringList{folder, noFile} << u"C:\\p"_qs;
    QTest::newRow("selection alone") << QStringList{file} << answer;
    QTest::newRow("selection in place without path") << QStringList{noFolder, file} << answer;
    QTest::newRow("both: the selection") << QStringList{folder, file} << answer;
    QTest::newRow("both, the folder last") << QStringList{file, folder} << answer;
    QTest::newRow("selection that can't be asked for: as it was")
        << QStringList{folder, file, u"failing selection"_qs} << answer;
    QTest::newRow("no path") << QStringList{noFolder} << QString();
    QTest::newRow("two without path") << QStringList{noFolder, noFile} << QString();
    QTest::newRow("folder's path gone") << QStringList{folder, noFolder} << QString();
    QTest::newRow("selection's path gone") << QStringList{file, noFile} << QString();
    QTest::newRow("selection's path gone: the folder") << QStringList{folder, file, noFile} << u"C:\\p"_qs;
}

void tst_FolderDialogSteps_win::release_answers()
{
    QFETCH(const QStringList, changes);
    QFETCH(const QString, answer);

    FakeFileDialog fake;
    LRESULT result = -1;
    HRESULT fileOk = E_FAIL;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        for (const QString &change : changes) {
            fake.tell(change, dialog, events);
        }
        result = releaseMouse(fake);
        fileOk = events->OnFileOk(dialog);
    };
    QCOMPARE(ask(), answer);
    const bool isAccepted = !answer.isEmpty();
    const QList<WindowMessage> passedOn{{fake.button, WM_LBUTTONUP, 0, 12}};
    QCOMPARE(result, LRESULT(isAccepted ? 0 : 7));
    QCOMPARE(fake.buttonMessages, isAccepted ? QList<WindowMessage>() : passedOn);
    QCOMPARE(fake.isClosed, isAccepted);
    QCOMPARE(fileOk, isAccepted ? S_OK : S_FALSE);
    QCOMPARE(fake.objects, 0);
    QCOMPARE(fake.paths.blocks(), 0);
}

void tst_FolderDialogSteps_win::otherMessages_goToTheButton_data()
{
    QTest::addColumn<uint>("message");
    QTest::newRow("mouse press") << uint(WM_LBUTTONDOWN);
    QTest::newRow("double click") << uint(WM_LBUTTONDBLCLK);
    QTest::newRow("mouse move") << uint(WM_MOUSEMOVE);
    QTest::newRow("release of the right button") << uint(WM_RBUTTONUP);
    QTest::newRow("release beside the client area") << uint(WM_NCLBUTTONUP);
    QTest::newRow("key press") << uint(WM_KEYDOWN);
    QTest::newRow("key release") << uint(WM_KEYUP);
    QTest::newRow("character") << uint(WM_CHAR);
    QTest::newRow("click by program") << uint(BM_CLICK);
    QTest::newRow("command") << uint(WM_COMMAND);
    QTest::newRow("focus") << uint(WM_SETFOCUS);
    QTest::newRow("close") << uint(WM_CLOSE);
    QTest::newRow("a message of its own") << uint(WM_USER);
}

void tst_FolderDialogSteps_win::otherMessages_goToTheButton()
{
    QFETCH(const uint, message);

    FakeFileDialog fake;
    fake.folder = u"C:\\p"_qs;
    fake.buttonResults.insert(message, 8);
    LRESULT result = -1;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        result = SendMessageW(fake.button, message, VK_RETURN, 12);
        QCOMPARE(fake.buttonMessages, QList<WindowMessage>({{fake.button, message, VK_RETURN, 12}}));
    };
    QCOMPARE(ask(), QString());
    QCOMPARE(result, LRESULT(8));
    QVERIFY(!fake.isClosed);
}

void tst_FolderDialogSteps_win::release_onAnotherWindow_goesToTheButton()
{
    FakeFileDialog fake;
    fake.folder = u"C:\\p"_qs;
    LRESULT result = -1;
    fake.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        events->OnFolderChange(dialog);
        const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(fake.button, GWLP_WNDPROC));
        result = CallWindowProcW(procedure, fake.window, WM_LBUTTONUP, 0, 12);
    };
    QCOMPARE(ask(), QString());
    QCOMPARE(result, LRESULT(7));
    QCOMPARE(fake.buttonMessages, QList<WindowMessage>({{fake.window, WM_LBUTTONUP, 0, 12}}));
}

void tst_FolderDialogSteps_win::button_isSubclassedOnce()
{
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
    ask();
    QVERIFY(first != before);
    QCOMPARE(second, first);
    QCOMPARE(fake.calls.count(u"GetWindow"_qs), 1);
}

void tst_FolderDialogSteps_win::nextDialog_startsAnew_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("answer");
    for (const bool isAccepted : {true, false}) {
        const char *former = isAccepted ? "accepted" : "closed";
        QTest::addRow("%s, then a folder", former) << isAccepted << u"folder C:\\q"_qs << u"C:\\q"_qs;
        QTest::addRow("%s, then a folder without path", former) << isAccepted << u"folder"_qs << QString();
        QTest::addRow("%s, then a selection without path", former) << isAccepted << u"selection"_qs << QString();
    }
}

void tst_FolderDialogSteps_win::nextDialog_startsAnew()
{
    QFETCH(const bool, isAccepted);
    QFETCH(const QString, change);
    QFETCH(const QString, answer);

    auto former = std::make_unique<FakeFileDialog>();
    former->whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        former->tell(u"folder C:\\p"_qs, dialog, events);
        former->tell(u"selection C:\\p\\a.nef"_qs, dialog, events);
        if (isAccepted) {
            releaseMouse(*former);
        }
    };
    QCOMPARE(ask(), isAccepted ? u"C:\\p\\a.nef"_qs : QString());
    QCOMPARE(former->paths.blocks(), 0);
    former.reset();

    FakeFileDialog next;
    HRESULT fileOk = E_FAIL;
    next.whileShown = [&](IFileDialog *dialog, IFileDialogEvents *events) {
        fileOk = events->OnFileOk(dialog);
        next.tell(change, dialog, events);
        releaseMouse(next);
    };
    QCOMPARE(ask(), answer);
    QCOMPARE(fileOk, S_FALSE);
    QCOMPARE(next.isClosed, !answer.isEmpty());
    QCOMPARE(next.buttonMessages.size(), answer.isEmpty() ? 1 : 0);
}

QTEST_MAIN(tst_FolderDialogSteps_win)
#include "tst_FolderDialogSteps_win.moc"

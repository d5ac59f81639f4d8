// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/NativeDialogs.h"

#include "baseDialogs/OpenFolderDialog_win.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <array>
#include <commctrl.h>
#include <windows.h>

using namespace ZYX_zglv6;
using TestSupport::buttonOf;
using TestSupport::OpenFolderDialog;
using TestSupport::textOf;
using TestSupport::waitFor;

namespace {

/*! The list of the folder's contents, deep in the dialog. */
HWND listOf(HWND dialog)
{
    HWND list = nullptr;
    const auto find = [](HWND control, LPARAM target) -> BOOL {
        std::array<wchar_t, 64> name{};
        const int length = GetClassNameW(control, name.data(), int(name.size()));
        if (QString::fromWCharArray(name.data(), length) != u"SysListView32") {
            return TRUE;
        }
        *reinterpret_cast<HWND *>(target) = control;
        return FALSE;
    };
    EnumChildWindows(dialog, find, reinterpret_cast<LPARAM>(&list));
    return list;
}

/*! Selects the only thing in the folder. */
bool selectOnlyItem(HWND dialog)
{
    if (!waitFor([dialog] { return SendMessageW(listOf(dialog), LVM_GETITEMCOUNT, 0, 0) == 1; })) {
        return false;
    }
    LVITEMW item{};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(listOf(dialog), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    return SendMessageW(listOf(dialog), LVM_GETSELECTEDCOUNT, 0, 0) == 1;
}

bool isWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

void releaseMouse(HWND dialog)
{
    SendMessageW(buttonOf(dialog), WM_LBUTTONUP, 0, 0);
}

} // namespace

class tst_FolderDialog_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dialog_hasTitleAndLabel();
    void dialog_withoutTitle_keepsTheSystemsOwn();
    void dialog_belongsToTheParent();
    void release_withoutSelection_answersTheFolder();
    void release_withSelection_answersTheSelection_data();
    void release_withSelection_answersTheSelection();
    void release_whereNothingHasAPath_isRefused();
    void missingFolder_opensAllTheSame();
    void closing_answersEmpty_data();
    void closing_answersEmpty();
    void acceptance_withoutTheMouse_isRefused();
    void nextDialog_startsAnew();

private:
    QString ask(const QString &title, const QString &directory);

    TestSupport::Sandbox m_sandbox;
    QString m_folder;
};

void tst_FolderDialog_win::init()
{
    m_folder = m_sandbox.filePath(u"photos \u00fc/"_qs + QString::fromLatin1(QTest::currentTestFunction()));
    QVERIFY(QDir().mkpath(m_folder));
}

QString tst_FolderDialog_win::ask(const QString &title, const QString &directory)
{
    QWidget parent;
    parent.show();
    return Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(&parent, true, title, directory, {});
}

void tst_FolderDialog_win::dialog_hasTitleAndLabel()
{
    QString title;
    QString label;
    OpenFolderDialog open([&](HWND dialog) {
        title = textOf(dialog);
        label = textOf(buttonOf(dialog));
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    ask(u"Batch \u00fc"_qs, m_folder);
    QVERIFY(open.wasEnded());
    if (isWine()) {
        QEXPECT_FAIL("", "Wine writes its own title over it", Continue);
    }
    QCOMPARE(title, u"Batch \u00fc"_qs);
    QCOMPARE(label, u"Select Folder"_qs);
}

void tst_FolderDialog_win::dialog_withoutTitle_keepsTheSystemsOwn()
{
    QString title;
    OpenFolderDialog open([&](HWND dialog) {
        title = textOf(dialog);
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    ask(QString(), m_folder);
    QVERIFY(open.wasEnded());
    QVERIFY(!title.isEmpty());
}

void tst_FolderDialog_win::dialog_belongsToTheParent()
{
    HWND owner = nullptr;
    OpenFolderDialog open([&](HWND dialog) {
        owner = GetWindow(dialog, GW_OWNER);
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    QWidget parent;
    parent.show();
    Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(&parent, false, QString(), m_folder, {});
    QVERIFY(open.wasEnded());
    QCOMPARE(owner, reinterpret_cast<HWND>(parent.winId()));
}

void tst_FolderDialog_win::release_withoutSelection_answersTheFolder()
{
    OpenFolderDialog open(releaseMouse);
    QCOMPARE(ask(u"Batch"_qs, m_folder), QDir::toNativeSeparators(m_folder));
    QVERIFY(open.wasEnded());
}

void tst_FolderDialog_win::release_withSelection_answersTheSelection_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("file") << false;
    QTest::newRow("folder") << true;
}

void tst_FolderDialog_win::release_withSelection_answersTheSelection()
{
    QFETCH(const bool, isFolder);
    if (isWine() && !isFolder) {
        QSKIP("Wine shows no files where folders are chosen");
    }
    const QString folder = m_folder + (isFolder ? u"/1" : u"/2");
    const QString item = folder + u"/a.tif";
    QVERIFY(QDir().mkpath(isFolder ? item : folder));
    QFile file(item);
    QVERIFY(isFolder || file.open(QIODevice::WriteOnly));
    bool isSelected = false;
    OpenFolderDialog open([&isSelected](HWND dialog) {
        isSelected = selectOnlyItem(dialog);
        releaseMouse(dialog);
    });
    const QString answer = ask(u"Batch"_qs, folder);
    QVERIFY(open.wasEnded());
    QVERIFY(isSelected);
    QCOMPARE(answer, QDir::toNativeSeparators(item));
}

void tst_FolderDialog_win::release_whereNothingHasAPath_isRefused()
{
    if (isWine()) {
        QSKIP("Wine has a path for every place");
    }
    bool isOpen = false;
    OpenFolderDialog open([&](HWND dialog) {
        releaseMouse(dialog);
        isOpen = IsWindowVisible(dialog) != FALSE;
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    const QString computer = u"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"_qs; // the place that the drives are in
    QCOMPARE(ask(u"Batch"_qs, computer), QString());
    QVERIFY(open.wasEnded());
    QVERIFY(isOpen);
}

void tst_FolderDialog_win::missingFolder_opensAllTheSame()
{
    OpenFolderDialog open([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
    QCOMPARE(ask(u"Batch"_qs, m_folder + u"/none"_qs), QString());
    QVERIFY(open.wasEnded()); // there was one
}

void tst_FolderDialog_win::closing_answersEmpty_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<int>("parameter");
    QTest::newRow("close button") << int(WM_SYSCOMMAND) << int(SC_CLOSE);
    QTest::newRow("Escape") << int(WM_COMMAND) << int(IDCANCEL);
    QTest::newRow("closed from outside") << int(WM_CLOSE) << 0;
}

void tst_FolderDialog_win::closing_answersEmpty()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, message);
    QFETCH(const int, parameter);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const TestSupport::AssertionReports reports;
    OpenFolderDialog open([&](HWND dialog) { PostMessageW(dialog, UINT(message), WPARAM(parameter), 0); });
    QCOMPARE(ask(u"Batch"_qs, m_folder), QString());
    QVERIFY(open.wasEnded());
    QCOMPARE(reports.texts(), QStringList());
    QCOMPARE(log.records(), QStringList());
}

void tst_FolderDialog_win::acceptance_withoutTheMouse_isRefused()
{
    bool isOpen = false;
    OpenFolderDialog open([&](HWND dialog) {
        SendMessageW(dialog, WM_COMMAND, IDOK, reinterpret_cast<LPARAM>(buttonOf(dialog))); // what Enter sends
        isOpen = IsWindowVisible(dialog) != FALSE;
        releaseMouse(dialog);
    });
    QCOMPARE(ask(u"Batch"_qs, m_folder), QDir::toNativeSeparators(m_folder));
    QVERIFY(open.wasEnded());
    QVERIFY(isOpen);
}

void tst_FolderDialog_win::nextDialog_startsAnew()
{
    for (int round = 0; round < 2; ++round) {
        OpenFolderDialog accepting(releaseMouse);
        QCOMPARE(ask(u"Batch"_qs, m_folder), QDir::toNativeSeparators(m_folder));
        QVERIFY(accepting.wasEnded());
        OpenFolderDialog closing([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
        QCOMPARE(ask(u"Batch"_qs, m_folder), QString());
        QVERIFY(closing.wasEnded());
    }
}

QTEST_MAIN(tst_FolderDialog_win)
#include "tst_FolderDialog_win.moc"

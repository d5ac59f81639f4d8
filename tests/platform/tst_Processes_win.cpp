// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Processes.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <windows.h>

using ZyxPlatform::fileVersion;
using ZyxPlatform::FileVersion;

namespace {

QString pathBesideProgram(const char *fileName)
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u'/' + QString::fromUtf8(fileName));
}

HMODULE loadedModule(const QString &path)
{
    return GetModuleHandleW(reinterpret_cast<const wchar_t *>(path.utf16()));
}

int handleCount()
{
    DWORD count = 0;
    return GetProcessHandleCount(GetCurrentProcess(), &count) ? int(count) : -1;
}

} // namespace

class tst_Processes_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileVersion_isTheFilesAndNotTheProducts();
    void fileVersion_underAnotherNumberThan1_isNone();
    void fileVersion_keepsTheFileLoaded();
    void search_leavesNoHandleOpen();
};

void tst_Processes_win::fileVersion_isTheFilesAndNotTheProducts()
{
    QCOMPARE(fileVersion(pathBesideProgram(VERSION_OF_FILE)), std::optional(FileVersion{1, 2, 3, 65'535}));
}

void tst_Processes_win::fileVersion_underAnotherNumberThan1_isNone()
{
    const QString path = pathBesideProgram(VERSION_UNDER_NUMBER_2);
    QVERIFY(!fileVersion(path));
    const HMODULE module = loadedModule(path);
    QVERIFY(module != nullptr);
    QVERIFY(FindResourceW(module, MAKEINTRESOURCEW(2), RT_VERSION) != nullptr); // it is there
}

void tst_Processes_win::fileVersion_keepsTheFileLoaded()
{
    const QString path = pathBesideProgram("kept.dll");
    QFile::remove(path); // of a run that was broken off
    QVERIFY(QFile::copy(pathBesideProgram(VERSION_OF_FILE), path));
    QCOMPARE(loadedModule(path), nullptr);

    QVERIFY(fileVersion(path));
    const HMODULE module = loadedModule(path);
    QVERIFY(module != nullptr);
    QVERIFY(fileVersion(path));
    QCOMPARE(loadedModule(path), module);

    FreeLibrary(module);
    QVERIFY(loadedModule(path) != nullptr); // once for each call
    FreeLibrary(module);
    QCOMPARE(loadedModule(path), nullptr);
    QVERIFY(QFile::remove(path));
}

void tst_Processes_win::search_leavesNoHandleOpen()
{
    const int atStart = handleCount();
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const int withEvent = handleCount();
    CloseHandle(event);
    if (withEvent != atStart + 1) {
        QSKIP("This system does not count the handles of a process.");
    }

    QVERIFY(!ZyxPlatform::pathOfFirstProcessNamed(ZyxPlatform::currentProcessName()).isEmpty());
    const int before = handleCount();
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(ZyxPlatform::pathOfFirstProcessNamed(u"no-such-process-5b1f.exe"_qs), QString());
        QVERIFY(!ZyxPlatform::pathOfFirstProcessNamed(ZyxPlatform::currentProcessName()).isEmpty());
    }
    QCOMPARE(handleCount(), before);
}

QTEST_GUILESS_MAIN(tst_Processes_win)

#include "tst_Processes_win.moc"

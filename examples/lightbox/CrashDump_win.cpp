// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashDump.h"
#include "CrashDump_p.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <string>

// clang-format off
#include <windows.h> // before dbghelp.h, which needs it
#include <dbghelp.h>
// clang-format on

namespace {

std::wstring dumpPath; // filled in advance
std::array<char, 1024> exceptionText;
std::atomic<DWORD> dumpingThread = 0; // which no thread has as its identifier

/*! True once. Another thread that crashes waits until the first one ends the process. */
bool isFirstCrash()
{
    DWORD first = 0;
    if (dumpingThread.compare_exchange_strong(first, GetCurrentThreadId())) {
        return true;
    }
    if (first != GetCurrentThreadId()) {
        Sleep(INFINITE);
    }
    return false;
}

void writeDump(EXCEPTION_POINTERS *exception)
{
    if (!isFirstCrash()) {
        return;
    }
    const HANDLE file
        = CreateFileW(dumpPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return;
    }
    MINIDUMP_EXCEPTION_INFORMATION cause{GetCurrentThreadId(), exception, FALSE};
    MINIDUMP_USER_STREAM comment{CommentStreamA, ULONG(exceptionText.size()), exceptionText.data()};
    MINIDUMP_USER_STREAM_INFORMATION comments{1, &comment};
    MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal, &cause,
                      exceptionText.front() != '\0' ? &comments : nullptr, nullptr);
    CloseHandle(file);
}

/*! For a death that the system does not know as an exception. */
void writeDumpOfThisPlace()
{
    CONTEXT context{};
    RtlCaptureContext(&context);
    EXCEPTION_RECORD record{};
    record.ExceptionCode = DWORD(0xe0000001); // of an application, not of the system
    EXCEPTION_POINTERS pointers{&record, &context};
    writeDump(&pointers);
}

LONG WINAPI onUnhandledException(EXCEPTION_POINTERS *exception)
{
    writeDump(exception);
    return EXCEPTION_EXECUTE_HANDLER; // ends the process with the exception's code, without asking a debugger
}

void onAbort(int /*signal*/)
{
    writeDumpOfThisPlace(); // abort() ends the process when this returns
}

[[noreturn]] void onTerminate()
{
    describeCurrentException(exceptionText.data(), exceptionText.size());
    std::abort();
}

} // namespace

void installCrashDump()
{
    dumpPath = crashDumpPath().toStdWString();
    SetUnhandledExceptionFilter(onUnhandledException);
    std::signal(SIGABRT, onAbort);
    std::set_terminate(onTerminate);
#if defined(_MSC_VER)
    _set_abort_behavior(0, _WRITE_ABORT_MSG | _CALL_REPORTFAULT); // no box that waits for somebody
#endif
}

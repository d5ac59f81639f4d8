// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/OpenFolderDialog_win.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QList>

#include <array>
#include <chrono>

using namespace std::chrono_literals;

namespace TestSupport {

namespace {

constexpr auto watchdog = 10s;

BOOL CALLBACK findDialog(HWND window, LPARAM target)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    std::array<wchar_t, 64> name{};
    const int length = GetClassNameW(window, name.data(), int(name.size()));
    if (process != GetCurrentProcessId() || IsWindowVisible(window) == FALSE
        || QString::fromWCharArray(name.data(), length) != u"#32770") {
        return TRUE;
    }
    *reinterpret_cast<HWND *>(target) = window;
    return FALSE;
}

} // namespace

OpenFolderDialog::OpenFolderDialog(std::function<void(HWND)> react)
    : m_react(std::move(react))
    , m_thread([this] { watch(); })
{
}

OpenFolderDialog::~OpenFolderDialog()
{
    wasEnded();
}

bool OpenFolderDialog::wasEnded()
{
    m_isEnding = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
    return m_wasEnded;
}

void OpenFolderDialog::watch()
{
    HWND dialog = nullptr;
    while (dialog == nullptr && !m_isEnding) {
        EnumWindows(findDialog, reinterpret_cast<LPARAM>(&dialog));
        std::this_thread::sleep_for(5ms);
    }
    if (dialog == nullptr) {
        return;
    }
    m_react(dialog);
    m_wasEnded = waitFor([dialog] { return IsWindow(dialog) == FALSE; });
    if (!m_wasEnded) {
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    }
}

QString textOf(HWND window)
{
    QList<wchar_t> text(GetWindowTextLengthW(window) + 1);
    return QString::fromWCharArray(text.data(), GetWindowTextW(window, text.data(), int(text.size())));
}

HWND buttonOf(HWND dialog)
{
    return GetDlgItem(dialog, 1);
}

bool waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(watchdog);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

} // namespace TestSupport

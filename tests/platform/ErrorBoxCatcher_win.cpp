// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxCatcher.h"

#include <QtCore/QMutex>

#include <array>
#include <atomic>
#include <chrono>
#include <thread>
#include <windows.h>

using namespace std::chrono_literals;

namespace TestSupport {

namespace {

QString classOf(HWND window)
{
    std::array<wchar_t, 64> name{};
    return QString::fromWCharArray(name.data(), GetClassNameW(window, name.data(), int(name.size())));
}

QString textOf(HWND window)
{
    QList<wchar_t> text(GetWindowTextLengthW(window) + 1);
    return QString::fromWCharArray(text.data(), GetWindowTextW(window, text.data(), int(text.size())));
}

bool isErrorIcon(HWND control)
{
    const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    return icon != nullptr && icon == LoadIconW(nullptr, IDI_ERROR);
}

BOOL CALLBACK readControl(HWND control, LPARAM target)
{
    ErrorBox &box = *reinterpret_cast<ErrorBox *>(target);
    const bool isVisible = (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
    if (classOf(control).compare(u"Button", Qt::CaseInsensitive) == 0) {
        box.buttonCount += isVisible ? 1 : 0;
    } else if (isErrorIcon(control)) {
        box.hasErrorIcon = true;
    } else if (isVisible) {
        box.text += textOf(control);
    }
    return TRUE;
}

ErrorBox boxOf(HWND window)
{
    ErrorBox box;
    box.title = textOf(window);
    box.parent = quintptr(GetWindow(window, GW_OWNER));
    EnumChildWindows(window, readControl, reinterpret_cast<LPARAM>(&box));
    return box;
}

BOOL CALLBACK findBox(HWND window, LPARAM target)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || IsWindowVisible(window) == FALSE || classOf(window) != u"#32770") {
        return TRUE;
    }
    *reinterpret_cast<HWND *>(target) = window;
    return FALSE;
}

} // namespace

class ErrorBoxCatcher::Pimpl
{
public:
    Pimpl()
        : m_thread([this] { watch(); })
    {
    }

    ~Pimpl()
    {
        m_isEnding = true;
        m_thread.join();
    }

    QList<ErrorBox> boxes() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_boxes;
    }

private:
    void watch()
    {
        HWND closed = nullptr;
        while (!m_isEnding) {
            HWND window = nullptr;
            EnumWindows(findBox, reinterpret_cast<LPARAM>(&window));
            if (window != nullptr && window != closed) {
                append(boxOf(window));
                PostMessageW(window, WM_COMMAND, IDOK, 0);
            }
            closed = window;
            std::this_thread::sleep_for(5ms);
        }
    }

    void append(const ErrorBox &box)
    {
        const QMutexLocker lock(&m_mutex);
        m_boxes.append(box);
    }

    mutable QMutex m_mutex;
    QList<ErrorBox> m_boxes;
    std::atomic_bool m_isEnding = false;
    std::thread m_thread; // last: it uses the others
};

ErrorBoxCatcher::ErrorBoxCatcher()
    : pimpl(std::make_unique<Pimpl>())
{
}

ErrorBoxCatcher::~ErrorBoxCatcher() = default;

QList<ErrorBox> ErrorBoxCatcher::boxes() const
{
    return pimpl->boxes();
}

} // namespace TestSupport

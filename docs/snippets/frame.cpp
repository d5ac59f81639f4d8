// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/frame/Application.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/ErrStrings.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/ProcessInfo.h"
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <new>

using namespace ZYX_zglv6;

namespace Snippets {

//! [log]
QByteArray readCurve(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ZYX_LOG('E', path + u": " + file.errorString());
        return {};
    }
    return file.readAll();
}
//! [log]

//! [assertion]
int exposureTimeMs(int framesPerSecond)
{
    ASSERT_X_RETURN_VALUE(framesPerSecond > 0, 0, "The frame rate is not positive");
    return 1000 / framesPerSecond;
}
//! [assertion]

//! [singleton]
class CFrameCounter final : public Singleton<CFrameCounter>
{
public:
    int next()
    {
        return ++m_last;
    }

private:
    friend class Singleton<CFrameCounter>;
    CFrameCounter() = default;

    int m_last = 0;
};

int numberOfNextFrame()
{
    return CFrameCounter::instance().next();
}
//! [singleton]

//! [application]
class CHostApplication final : public QApplication, public IApplication
{
public:
    using QApplication::QApplication;

    void setMainWindow(QWidget *window)
    {
        m_mainWindow = window;
    }

    QWidget *mainWindow() override
    {
        return m_mainWindow;
    }

private:
    QPointer<QWidget> m_mainWindow;
};
//! [application]

MainWindowHandles mainWindowHandles(int argc, char *argv[])
{
    CHostApplication application(argc, argv);
    const quint64 withoutWindow = mainWindowHandle();
    QWidget window;
    application.setMainWindow(&window);
    return {withoutWindow, mainWindowHandle(), window.winId()};
}

//! [last resort]
int runGuarded(const std::function<int()> &work)
{
    const CErrStrings lastResort; // while there still is memory for its texts
    try {
        return work();
    } catch (const std::bad_alloc &) {
        lastResort.ShowOutOfMemoryDialog();
        return 1;
    }
}
//! [last resort]

//! [version]
bool isOlderThan(const QString &processName, quint32 major, quint32 minor)
{
    const UtilsDll::BinaryVersion version = UtilsDll::binaryFileVersionByProcessName(processName);
    return version.major < major || (version.major == major && version.minor < minor);
}
//! [version]

} // namespace Snippets

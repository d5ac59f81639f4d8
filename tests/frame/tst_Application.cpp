// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "utilsDll/frame/Application.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <optional>
#include <type_traits>

using namespace ZYX_zglv6;

static_assert(std::is_abstract_v<IApplication> && std::has_virtual_destructor_v<IApplication>);
static_assert(std::is_same_v<decltype(&IApplication::mainWindow), QWidget *(IApplication::*)()>);

namespace {

int hostArgumentCount = 1;
char programName[] = "tst_Application";
char *hostArguments[] = {programName, nullptr};

/*! A host's application: the interface is its second base. */
class HostApplication : public QApplication, public IApplication
{
public:
    HostApplication()
        : QApplication(hostArgumentCount, hostArguments)
    {
    }

    QWidget *mainWindow() override
    {
        ++mainWindowCalls;
        return window;
    }

    void hostOperation2() override
    {
        ++otherCalls;
    }

    void hostOperation3() override
    {
        ++otherCalls;
    }

    void hostOperation4() override
    {
        ++otherCalls;
    }

    QWidget *window = nullptr;
    int mainWindowCalls = 0;
    int otherCalls = 0;
};

} // namespace

class tst_Application : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWindow_isTheFifthOperation();
    void hostOperations_areLeftToTheHost();

    void mainWindowHandle_withoutLogger_copes();
    void mainWindowHandle_withoutInterface_isLoggedAndZero();
    void mainWindowHandle_withoutApplication_isLoggedAndZero();
    void mainWindowHandle_withoutWindow_isLoggedAndZero();
    void mainWindowHandle_isTheWindowsId();
    void mainWindowHandle_followsTheMainWindow();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Application::mainWindow_isTheFifthOperation()
{
    const auto slot = TestSupport::virtualSlot(&IApplication::mainWindow);
    if (!slot) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*slot, 5);
    QCOMPARE(*TestSupport::virtualSlot(&IApplication::hostOperation2), 2);
    QCOMPARE(*TestSupport::virtualSlot(&IApplication::hostOperation3), 3);
    QCOMPARE(*TestSupport::virtualSlot(&IApplication::hostOperation4), 4);
}

void tst_Application::hostOperations_areLeftToTheHost()
{
    RUN_IN_FRESH_PROCESS();
    class Plain : public IApplication
    {
    public:
        QWidget *mainWindow() override
        {
            return nullptr;
        }
    };
    Plain plain; // need not bring any of them
    plain.hostOperation2();
    plain.hostOperation3();
    plain.hostOperation4();

    HostApplication application;
    QWidget window;
    application.window = &window;
    mainWindowHandle();
    QCOMPARE(application.mainWindowCalls, 1);
    QCOMPARE(application.otherCalls, 0);
}

void tst_Application::mainWindowHandle_withoutLogger_copes()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(loggerInstance() == nullptr);
    QCOMPARE(mainWindowHandle(), quint64(0));
    const HostApplication application;
    QCOMPARE(mainWindowHandle(), quint64(0));
}

void tst_Application::mainWindowHandle_withoutInterface_isLoggedAndZero()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QApplication application(hostArgumentCount, hostArguments);
    const QWidget window;
    QCOMPARE(mainWindowHandle(), quint64(0));
    QCOMPARE(log.records(),
             QStringList{u"ERROR `anonymous-namespace'::getMainWindowHWnd: Current qApp is not a pointer to "
                         "IApplication, return HWND_DESKTOP"_qs});
}

void tst_Application::mainWindowHandle_withoutApplication_isLoggedAndZero()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(QCoreApplication::instance() == nullptr);
    QCOMPARE(mainWindowHandle(), quint64(0));
    QCOMPARE(log.records(),
             QStringList{u"ERROR `anonymous-namespace'::getMainWindowHWnd: Current qApp is not a pointer to "
                         "IApplication, return HWND_DESKTOP"_qs});
}

void tst_Application::mainWindowHandle_withoutWindow_isLoggedAndZero()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const HostApplication application;
    QCOMPARE(mainWindowHandle(), quint64(0));
    QCOMPARE(log.records(),
             QStringList{u"ERROR `anonymous-namespace'::getMainWindowHWnd: MainWindow in application is nullptr, "
                         "return HWND_DESKTOP"_qs});
}

void tst_Application::mainWindowHandle_isTheWindowsId()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    HostApplication application;
    QWidget window;
    application.window = &window;
    QCOMPARE(window.internalWinId(), WId(0));

    const quint64 handle = mainWindowHandle();
    QVERIFY(handle != 0);
    QCOMPARE(handle, quint64(window.internalWinId())); // made by the call
    QCOMPARE(mainWindowHandle(), handle);
    QCOMPARE(log.records(), QStringList());
}

void tst_Application::mainWindowHandle_followsTheMainWindow()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    HostApplication application;
    QWidget first;
    QWidget second;
    application.window = &first;
    const quint64 firstHandle = mainWindowHandle();
    application.window = &second;
    QCOMPARE(mainWindowHandle(), quint64(second.winId()));
    QVERIFY(firstHandle != quint64(second.winId()));
}

int main(int argc, char *argv[])
{
    // In a process of its own, each function makes the application that it needs.
    std::optional<QCoreApplication> starter;
    if (!TestSupport::isFreshProcess()) {
        starter.emplace(argc, argv);
    }
    tst_Application test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Application.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/UserInput.h"

#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtTest/QTest>

#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>

using TestSupport::EventRecorder;
using TestSupport::MouseWindow;

namespace {

constexpr int smallestInt = std::numeric_limits<int>::min();
constexpr int largestInt = std::numeric_limits<int>::max();

const QList<int> inputTypes{2,   4,   6,   7,   8,   9,   10,  19,  60,  61,  62,  63,
                            155, 156, 157, 158, 159, 164, 165, 166, 167, 174, 175, 176};

std::unique_ptr<QEvent> makeEvent(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return std::make_unique<QMouseEvent>(type, QPointF(1, 1), QPointF(2, 2), Qt::LeftButton, Qt::LeftButton,
                                             Qt::NoModifier);
    case QEvent::KeyPress:
        return std::make_unique<QKeyEvent>(type, Qt::Key_A, Qt::NoModifier);
    case QEvent::FocusIn:
        return std::make_unique<QFocusEvent>(type);
    case QEvent::Close:
        return std::make_unique<QCloseEvent>();
    default:
        return nullptr;
    }
}

/*! Runs \a loop and, from within it, \a steps, which must end it. */
int execWith(CExcludeUserInpuEventLoop &loop, const std::function<void()> &steps)
{
    QTimer::singleShot(0, &loop, steps);
    return loop.exec();
}

/*! Ends \a loop with quit() after so many passes; how many there were, or -1 if exec() returned another code. */
int execForPasses(CExcludeUserInpuEventLoop &loop, int passes)
{
    int count = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (++count == passes) {
            loop.quit();
        }
    });
    timer.start(0);
    const int result = loop.exec();
    return result == 0 ? count : -1;
}

using LoopMember = void (CExcludeUserInpuEventLoop::*)();

void exitByDefault(CExcludeUserInpuEventLoop &loop)
{
    loop.exit();
}

} // namespace

class tst_ExcludeUserInputEventLoop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filter_swallowsUserInput_data();
    void filter_swallowsUserInput();
    void filter_letsOtherEventsPass_data();
    void filter_letsOtherEventsPass();
    void filter_swallowsExactlyTheTypesOfTheTable();
    void filter_withoutObjectOrEvent_letsPass_data();
    void filter_withoutObjectOrEvent_letsPass();
    void filter_withParent_installsItself();
    void filter_withoutParent_installsNothing();
    void filter_withParentGivenLater_installsNothing();
    void filter_destroyed_removesItself();
    void filter_destroyedByItsParent_goesQuietly();
    void filter_onTheApplication_swallowsEventsOfAnyObject();
    void filter_hasNoMetaObjectOfItsOwn();

    void metaObject_hasSlotsInOrder();
    void metaObject_slotsWorkByName();
    void constructor_withParent_isItsChild();
    void constructor_byDefault_watchesTheApplication();

    void exec_returnsExitCodeAndLogs_data();
    void exec_returnsExitCodeAndLogs();
    void exec_withoutLogger_copes();
    void exec_isRunningUntilTheExitRequest();
    void exec_whileRunning_returnsMinusOneAndLogs();
    void exec_whileRunning_doesNotDisturbTheRunningLoop();
    void exec_holdsInputOutWhileItRuns();
    void exec_holdsOnlyTheWatchedObjectsInputOut();
    void exec_ofSentEvents_data();
    void exec_ofSentEvents();
    void exec_leavesPlatformInputQueued();
    void exec_handlesTimersAndPostedEvents();
    void exec_withoutWatchedObject_runs();
    void exec_withWatchedObjectDestroyedBefore_runs();
    void exec_withWatchedObjectDestroyedMeanwhile_endsNormally_data();
    void exec_withWatchedObjectDestroyedMeanwhile_endsNormally();
    void exec_canBeRepeated();
    void exec_ofTwoLoopsOnOneObject_holdsInputOutUntilBothEnd();
    void exec_leftByException_letsInputInAndCanBeRepeated();
    void exec_endedByTheApplication_letsInputIn_data();
    void exec_endedByTheApplication_letsInputIn();
    void exec_betweenExitRequestAndReturn_returnsMinusOne();

    void exit_letsInputInBeforeExecReturns_data();
    void exit_letsInputInBeforeExecReturns();
    void exit_repeated_logsAgainAndKeepsTheFirstFilterRemoval();
    void exit_whileIdle_logsAndIsNotRemembered();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ExcludeUserInputEventLoop::filter_swallowsUserInput_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("MouseButtonPress") << 2;
    QTest::newRow("MouseButtonDblClick") << 4;
    QTest::newRow("KeyPress") << 6;
    QTest::newRow("KeyRelease") << 7;
    QTest::newRow("FocusIn") << 8;
    QTest::newRow("FocusOut") << 9;
    QTest::newRow("Enter") << 10;
    QTest::newRow("Close") << 19;
    QTest::newRow("DragEnter") << 60;
    QTest::newRow("DragMove") << 61;
    QTest::newRow("DragLeave") << 62;
    QTest::newRow("Drop") << 63;
    QTest::newRow("GraphicsSceneMouseMove") << 155;
    QTest::newRow("GraphicsSceneMousePress") << 156;
    QTest::newRow("GraphicsSceneMouseRelease") << 157;
    QTest::newRow("GraphicsSceneMouseDoubleClick") << 158;
    QTest::newRow("GraphicsSceneContextMenu") << 159;
    QTest::newRow("GraphicsSceneDragEnter") << 164;
    QTest::newRow("GraphicsSceneDragMove") << 165;
    QTest::newRow("GraphicsSceneDragLeave") << 166;
    QTest::newRow("GraphicsSceneDrop") << 167;
    QTest::newRow("NonClientAreaMouseButtonPress") << 174;
    QTest::newRow("NonClientAreaMouseButtonRelease") << 175;
    QTest::newRow("NonClientAreaMouseButtonDblClick") << 176;
}

void tst_ExcludeUserInputEventLoop::filter_swallowsUserInput()
{
    QFETCH(int, type);
    EventRecorder receiver;
    CExcludeUserInpuEventsFilter filter;
    receiver.installEventFilter(&filter);

    QEvent event{QEvent::Type(type)};
    event.setAccepted(true);
    QVERIFY(QCoreApplication::sendEvent(&receiver, &event));
    QVERIFY(!event.isAccepted());
    QCOMPARE(receiver.types, QList<int>());

    event.setAccepted(true);
    QVERIFY(filter.eventFilter(&receiver, &event));
    QVERIFY(!event.isAccepted());
}

void tst_ExcludeUserInputEventLoop::filter_letsOtherEventsPass_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("None") << 0;
    QTest::newRow("Timer") << 1;
    QTest::newRow("MouseButtonRelease") << 3;
    QTest::newRow("MouseMove") << 5;
    QTest::newRow("Leave") << 11;
    QTest::newRow("Paint") << 12;
    QTest::newRow("Resize") << 14;
    QTest::newRow("Show") << 17;
    QTest::newRow("Hide") << 18;
    QTest::newRow("Quit") << 20;
    QTest::newRow("WindowActivate") << 24;
    QTest::newRow("Wheel") << 31;
    QTest::newRow("ShortcutOverride") << 51;
    QTest::newRow("ContextMenu") << 82;
    QTest::newRow("Shortcut") << 117;
    QTest::newRow("HoverEnter") << 127;
    QTest::newRow("HoverLeave") << 128;
    QTest::newRow("HoverMove") << 129;
    QTest::newRow("GraphicsSceneHoverEnter") << 160;
    QTest::newRow("GraphicsSceneHoverMove") << 161;
    QTest::newRow("GraphicsSceneHoverLeave") << 162;
    QTest::newRow("GraphicsSceneHelp") << 163;
    QTest::newRow("GraphicsSceneWheel") << 168;
    QTest::newRow("NonClientAreaMouseMove") << 173;
    QTest::newRow("TouchBegin") << 194;
    QTest::newRow("User") << 1000;
    QTest::newRow("MaxUser") << 65535;
}

void tst_ExcludeUserInputEventLoop::filter_letsOtherEventsPass()
{
    QFETCH(int, type);
    EventRecorder receiver;
    CExcludeUserInpuEventsFilter filter;

    for (const bool isAccepted : {true, false}) {
        QEvent event{QEvent::Type(type)};
        event.setAccepted(isAccepted);
        QVERIFY(!filter.eventFilter(&receiver, &event));
        QCOMPARE(event.isAccepted(), isAccepted);
    }
}

void tst_ExcludeUserInputEventLoop::filter_swallowsExactlyTheTypesOfTheTable()
{
    CExcludeUserInpuEventsFilter filter;
    QObject receiver;
    QList<int> swallowed;
    for (int type = QEvent::None; type <= QEvent::MaxUser; ++type) {
        QEvent event{QEvent::Type(type)};
        if (filter.eventFilter(&receiver, &event)) {
            swallowed.append(type);
        }
    }
    QCOMPARE(swallowed.size(), 24);
    QCOMPARE(swallowed, inputTypes);
}

void tst_ExcludeUserInputEventLoop::filter_withoutObjectOrEvent_letsPass_data()
{
    QTest::addColumn<bool>("hasObject");
    QTest::addColumn<bool>("hasEvent");

    QTest::newRow("no object") << false << true;
    QTest::newRow("no event") << true << false;
    QTest::newRow("neither") << false << false;
}

void tst_ExcludeUserInputEventLoop::filter_withoutObjectOrEvent_letsPass()
{
    QFETCH(bool, hasObject);
    QFETCH(bool, hasEvent);
    CExcludeUserInpuEventsFilter filter;
    QObject receiver;
    QEvent event(QEvent::KeyPress);

    QVERIFY(!filter.eventFilter(hasObject ? &receiver : nullptr, hasEvent ? &event : nullptr));
    QVERIFY(event.isAccepted());
}

void tst_ExcludeUserInputEventLoop::filter_withParent_installsItself()
{
    EventRecorder receiver;
    QVERIFY(isSeen(receiver));
    const CExcludeUserInpuEventsFilter filter(&receiver);
    QCOMPARE(filter.parent(), &receiver);
    QVERIFY(!isSeen(receiver));
    QVERIFY(isSeen(receiver, QEvent::MouseMove));
}

void tst_ExcludeUserInputEventLoop::filter_withoutParent_installsNothing()
{
    EventRecorder receiver;
    const CExcludeUserInpuEventsFilter filter;
    QCOMPARE(filter.parent(), nullptr);
    QVERIFY(isSeen(receiver)); // so it is not on the application either
}

void tst_ExcludeUserInputEventLoop::filter_withParentGivenLater_installsNothing()
{
    EventRecorder receiver;
    {
        CExcludeUserInpuEventsFilter filter;
        filter.setParent(&receiver);
        QVERIFY(isSeen(receiver));
    }
    QVERIFY(isSeen(receiver));
}

void tst_ExcludeUserInputEventLoop::filter_destroyed_removesItself()
{
    EventRecorder receiver;
    auto filter = std::make_unique<CExcludeUserInpuEventsFilter>(&receiver);
    QVERIFY(!isSeen(receiver));
    filter.reset();
    QVERIFY(isSeen(receiver));
}

void tst_ExcludeUserInputEventLoop::filter_destroyedByItsParent_goesQuietly()
{
    auto receiver = std::make_unique<EventRecorder>();
    const QPointer<QObject> filter(std::make_unique<CExcludeUserInpuEventsFilter>(receiver.get()).release());
    QVERIFY(!isSeen(*receiver));
    receiver.reset();
    QVERIFY(filter.isNull());
}

void tst_ExcludeUserInputEventLoop::filter_onTheApplication_swallowsEventsOfAnyObject()
{
    EventRecorder first;
    EventRecorder second;
    {
        const CExcludeUserInpuEventsFilter filter(QCoreApplication::instance());
        QVERIFY(!isSeen(first));
        QVERIFY(!isSeen(second, QEvent::Close));
        QVERIFY(isSeen(second, QEvent::MouseButtonRelease));
    }
    QVERIFY(isSeen(first));
    QVERIFY(isSeen(second, QEvent::Close));
}

void tst_ExcludeUserInputEventLoop::filter_hasNoMetaObjectOfItsOwn()
{
    const CExcludeUserInpuEventsFilter filter;
    QCOMPARE(&CExcludeUserInpuEventsFilter::staticMetaObject, &QObject::staticMetaObject);
    QCOMPARE(filter.metaObject(), &QObject::staticMetaObject);
}

void tst_ExcludeUserInputEventLoop::metaObject_hasSlotsInOrder()
{
    const QMetaObject &meta = CExcludeUserInpuEventLoop::staticMetaObject;
    QCOMPARE(meta.className(), "CExcludeUserInpuEventLoop");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);

    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
        methods.append(QByteArray(method.typeName()) + ' ' + method.methodSignature());
    }
    // the last is exit() with its default
    QCOMPARE(methods,
             QList<QByteArray>({"int exec()", "void quit()", "void failedQuit()", "void exit(int)", "void exit()"}));
}

void tst_ExcludeUserInputEventLoop::metaObject_slotsWorkByName()
{
    CExcludeUserInpuEventLoop loop;
    int result = -2;
    const auto execByName = [&](const char *slot) {
        QMetaObject::invokeMethod(&loop, slot, Qt::QueuedConnection);
        return QMetaObject::invokeMethod(&loop, "exec", Q_RETURN_ARG(int, result)) ? result : -2;
    };
    QCOMPARE(execByName("quit"), 0);
    QCOMPARE(execByName("failedQuit"), 1);
    QCOMPARE(execByName("exit"), 0);
    QMetaObject::invokeMethod(&loop, "exit", Qt::QueuedConnection, Q_ARG(int, 12));
    QCOMPARE(loop.exec(), 12);
}

void tst_ExcludeUserInputEventLoop::constructor_withParent_isItsChild()
{
    QObject parent;
    const CExcludeUserInpuEventLoop orphan;
    QCOMPARE(orphan.parent(), nullptr);
    auto *child = std::make_unique<CExcludeUserInpuEventLoop>(nullptr, &parent).release();
    QCOMPARE(child->parent(), &parent);
    QVERIFY(!child->isRunning());
    QCOMPARE(parent.children(), QObjectList{child});
}

void tst_ExcludeUserInputEventLoop::constructor_byDefault_watchesTheApplication()
{
    EventRecorder anyObject;
    CExcludeUserInpuEventLoop loop;
    bool isSeenMeanwhile = true;
    QVERIFY(isSeen(anyObject));
    execWith(loop, [&] {
        isSeenMeanwhile = isSeen(anyObject);
        loop.quit();
    });
    QVERIFY(!isSeenMeanwhile);
    QVERIFY(isSeen(anyObject));
}

void tst_ExcludeUserInputEventLoop::exec_returnsExitCodeAndLogs_data()
{
    using Request = std::function<void(CExcludeUserInpuEventLoop &)>;
    const auto exitWith
        = [](int code) { return Request([code](CExcludeUserInpuEventLoop &loop) { loop.exit(code); }); };
    QTest::addColumn<Request>("request");
    QTest::addColumn<int>("code");

    QTest::newRow("quit") << Request(&CExcludeUserInpuEventLoop::quit) << 0;
    QTest::newRow("failedQuit") << Request(&CExcludeUserInpuEventLoop::failedQuit) << 1;
    QTest::newRow("exit") << Request(&exitByDefault) << 0;
    QTest::newRow("exit 0") << exitWith(0) << 0;
    QTest::newRow("exit 1") << exitWith(1) << 1;
    QTest::newRow("exit 7") << exitWith(7) << 7;
    QTest::newRow("exit -1") << exitWith(-1) << -1;
    QTest::newRow("exit with the smallest code") << exitWith(smallestInt) << smallestInt;
    QTest::newRow("exit with the largest code") << exitWith(largestInt) << largestInt;
}

void tst_ExcludeUserInputEventLoop::exec_returnsExitCodeAndLogs()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(std::function<void(CExcludeUserInpuEventLoop &)>, request);
    QFETCH(int, code);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CExcludeUserInpuEventLoop loop;

    QStringList recordsAtExit;
    const int result = execWith(loop, [&] {
        request(loop);
        recordsAtExit = log.records();
    });
    QCOMPARE(result, code);
    QStringList expected(u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: " + QString::number(code));
    QCOMPARE(recordsAtExit, expected);
    if (code != 0) {
        expected.append(u"ERROR CExcludeUserInpuEventLoop::exec: Wrong exec result: " + QString::number(code));
    }
    QCOMPARE(log.records(), expected);
}

void tst_ExcludeUserInputEventLoop::exec_withoutLogger_copes()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(ZYX_zglv6::loggerInstance(), nullptr);
    CExcludeUserInpuEventLoop loop;
    int nestedResult = 0;
    loop.exit(5);
    const int result = execWith(loop, [&] {
        nestedResult = loop.exec();
        loop.failedQuit();
    });
    QCOMPARE(nestedResult, -1);
    QCOMPARE(result, 1);

    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QCOMPARE(log.records(), QStringList()); // nothing was kept for later
}

void tst_ExcludeUserInputEventLoop::exec_isRunningUntilTheExitRequest()
{
    CExcludeUserInpuEventLoop loop;
    bool isRunningMeanwhile = false;
    bool isRunningAfterRequest = true;
    QVERIFY(!loop.isRunning());
    execWith(loop, [&] {
        isRunningMeanwhile = loop.isRunning();
        loop.quit();
        isRunningAfterRequest = loop.isRunning();
    });
    QVERIFY(isRunningMeanwhile);
    QVERIFY(!isRunningAfterRequest);
    QVERIFY(!loop.isRunning());
}

void tst_ExcludeUserInputEventLoop::exec_whileRunning_returnsMinusOneAndLogs()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CExcludeUserInpuEventLoop loop;
    int nestedResult = 0;
    const int result = execWith(loop, [&] {
        nestedResult = loop.exec();
        loop.quit();
    });
    QCOMPARE(nestedResult, -1);
    QCOMPARE(result, 0);
    QCOMPARE(log.records(),
             QStringList({u"ERROR CExcludeUserInpuEventLoop::exec: The wait is already running"_qs,
                          u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 0"_qs}));
}

void tst_ExcludeUserInputEventLoop::exec_whileRunning_doesNotDisturbTheRunningLoop()
{
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    bool isStillRunning = false;
    bool isInputLetIn = true;
    int timeouts = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++timeouts == 3) {
            loop.exit(4);
        }
    });
    const int result = execWith(loop, [&] {
        loop.exec();
        isStillRunning = loop.isRunning();
        isInputLetIn = isSeen(receiver);
        timer.start(0);
    });
    QVERIFY(isStillRunning);
    QVERIFY(!isInputLetIn);
    QCOMPARE(timeouts, 3);
    QCOMPARE(result, 4);
    QVERIFY(isSeen(receiver));
}

void tst_ExcludeUserInputEventLoop::exec_holdsInputOutWhileItRuns()
{
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    QVERIFY(isSeen(receiver));
    QList<int> seen;
    execWith(loop, [&] {
        for (const int type : inputTypes) {
            if (isSeen(receiver, QEvent::Type(type))) {
                seen.append(type);
            }
        }
        loop.quit();
    });
    QCOMPARE(seen, QList<int>());
    QVERIFY(isSeen(receiver));
}

void tst_ExcludeUserInputEventLoop::exec_holdsOnlyTheWatchedObjectsInputOut()
{
    EventRecorder watched;
    EventRecorder other;
    CExcludeUserInpuEventLoop loop(&watched);
    bool isOtherSeen = false;
    execWith(loop, [&] {
        isOtherSeen = isSeen(other);
        loop.quit();
    });
    QVERIFY(isOtherSeen);
}

void tst_ExcludeUserInputEventLoop::exec_ofSentEvents_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSeen");

    QTest::newRow("MouseButtonRelease") << int(QEvent::MouseButtonRelease) << true;
    QTest::newRow("MouseMove") << int(QEvent::MouseMove) << true;
    QTest::newRow("MouseButtonPress") << int(QEvent::MouseButtonPress) << false;
    QTest::newRow("KeyPress") << int(QEvent::KeyPress) << false;
    QTest::newRow("FocusIn") << int(QEvent::FocusIn) << false;
    QTest::newRow("Close") << int(QEvent::Close) << false;
}

void tst_ExcludeUserInputEventLoop::exec_ofSentEvents()
{
    QFETCH(int, type);
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    const std::unique_ptr<QEvent> event = makeEvent(QEvent::Type(type));
    event->setAccepted(true);
    execWith(loop, [&] {
        QCoreApplication::sendEvent(&receiver, event.get());
        loop.quit();
    });
    QTEST(receiver.types.contains(type), "isSeen");
    QTEST(event->isAccepted(), "isSeen");
}

void tst_ExcludeUserInputEventLoop::exec_leavesPlatformInputQueued()
{
    MouseWindow window;
    QVERIFY(window.showUnderCursor());
    CExcludeUserInpuEventLoop loop(nullptr); // without the filter's help
    window.queueMove();
    QCOMPARE(execForPasses(loop, 5), 5);
    QCOMPARE(window.moves, 0);
    QTRY_COMPARE(window.moves, 1);
}

void tst_ExcludeUserInputEventLoop::exec_handlesTimersAndPostedEvents()
{
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop;
    QCoreApplication::postEvent(&receiver, std::make_unique<QEvent>(QEvent::User).release());
    QCOMPARE(execForPasses(loop, 3), 3);
    QCOMPARE(receiver.types, QList<int>{QEvent::User});
}

void tst_ExcludeUserInputEventLoop::exec_withoutWatchedObject_runs()
{
    EventRecorder anyObject;
    CExcludeUserInpuEventLoop loop(nullptr);
    bool isSeenMeanwhile = false;
    const int result = execWith(loop, [&] {
        isSeenMeanwhile = isSeen(anyObject);
        loop.exit(2);
    });
    QCOMPARE(result, 2);
    QVERIFY(isSeenMeanwhile);
}

void tst_ExcludeUserInputEventLoop::exec_withWatchedObjectDestroyedBefore_runs()
{
    auto watched = std::make_unique<EventRecorder>();
    CExcludeUserInpuEventLoop loop(watched.get());
    watched.reset();
    QCOMPARE(execForPasses(loop, 2), 2);
}

void tst_ExcludeUserInputEventLoop::exec_withWatchedObjectDestroyedMeanwhile_endsNormally_data()
{
    QTest::addColumn<bool>("isBeforeTheRequest");

    QTest::newRow("before the exit request") << true;
    QTest::newRow("between the exit request and the end of exec()") << false;
}

void tst_ExcludeUserInputEventLoop::exec_withWatchedObjectDestroyedMeanwhile_endsNormally()
{
    QFETCH(bool, isBeforeTheRequest);
    auto watched = std::make_unique<EventRecorder>();
    CExcludeUserInpuEventLoop loop(watched.get());
    const int result = execWith(loop, [&] {
        if (isBeforeTheRequest) {
            watched.reset();
        }
        loop.exit(3);
        watched.reset();
    });
    QCOMPARE(result, 3);
    QCOMPARE(execForPasses(loop, 2), 2);
}

void tst_ExcludeUserInputEventLoop::exec_canBeRepeated()
{
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    for (const int code : {3, 0, 1, 0}) {
        bool isSeenMeanwhile = true;
        const int result = execWith(loop, [&] {
            isSeenMeanwhile = isSeen(receiver);
            loop.exit(code);
        });
        QCOMPARE(result, code);
        QVERIFY(!isSeenMeanwhile);
        QVERIFY(isSeen(receiver));
    }
}

void tst_ExcludeUserInputEventLoop::exec_ofTwoLoopsOnOneObject_holdsInputOutUntilBothEnd()
{
    EventRecorder receiver;
    CExcludeUserInpuEventLoop outer(&receiver);
    CExcludeUserInpuEventLoop inner(&receiver);
    int innerResult = 0;
    bool isSeenBetween = true;
    const int outerResult = execWith(outer, [&] {
        innerResult = execWith(inner, [&] { inner.exit(6); });
        isSeenBetween = isSeen(receiver);
        outer.exit(7);
    });
    QCOMPARE(innerResult, 6);
    QCOMPARE(outerResult, 7);
    QVERIFY(!isSeenBetween);
    QVERIFY(isSeen(receiver));
}

void tst_ExcludeUserInputEventLoop::exec_leftByException_letsInputInAndCanBeRepeated()
{
    RUN_IN_FRESH_PROCESS(); // what the platform's dispatcher makes of it is not other tests' concern
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    bool isSeenMeanwhile = true;
    QTimer::singleShot(0, &loop, [&] {
        isSeenMeanwhile = isSeen(receiver);
        throw std::runtime_error("from an event handler");
    });
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Qt has caught an exception thrown from an event"_qs));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, loop.exec());
    QVERIFY(!isSeenMeanwhile);
    QVERIFY(isSeen(receiver));

    QVERIFY(!loop.isRunning());
    QTimer::singleShot(0, &loop, &CExcludeUserInpuEventLoop::quit);
    QCOMPARE(loop.exec(), 0);
}

void tst_ExcludeUserInputEventLoop::exec_endedByTheApplication_letsInputIn_data()
{
    using Request = std::function<void()>;
    QTest::addColumn<Request>("request");
    QTest::addColumn<int>("code");

    QTest::newRow("quit") << Request(&QCoreApplication::quit) << 0;
    QTest::newRow("exit 0") << Request([] { QCoreApplication::exit(0); }) << 0;
    QTest::newRow("exit 3") << Request([] { QCoreApplication::exit(3); }) << 3;
}

void tst_ExcludeUserInputEventLoop::exec_endedByTheApplication_letsInputIn()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(std::function<void()>, request);
    QFETCH(int, code);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    int result = -2;
    QList<bool> seen;
    QTimer::singleShot(0, this, [&] {
        result = execWith(loop, [&] {
            request();
            seen.append(isSeen(receiver)); // nobody has asked this loop to end
        });
        seen.append(isSeen(receiver));
    });
    QCOMPARE(QCoreApplication::exec(), code);
    QCOMPARE(result, code);
    QCOMPARE(seen, QList<bool>({false, true}));
    QVERIFY(!loop.isRunning());
    const QStringList error(u"ERROR CExcludeUserInpuEventLoop::exec: Wrong exec result: " + QString::number(code));
    QCOMPARE(log.records(), code == 0 ? QStringList() : error);
}

void tst_ExcludeUserInputEventLoop::exec_betweenExitRequestAndReturn_returnsMinusOne()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    int nestedResult = 0;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^QEventLoop::exec: instance .* has already called"_qs));
    const int result = execWith(loop, [&] {
        loop.exit(2);
        nestedResult = loop.exec();
    });
    QCOMPARE(nestedResult, -1);
    QCOMPARE(result, 2);
    QVERIFY(isSeen(receiver));
    QCOMPARE(log.records(),
             QStringList({u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 2"_qs,
                          u"ERROR CExcludeUserInpuEventLoop::exec: Wrong exec result: -1"_qs,
                          u"ERROR CExcludeUserInpuEventLoop::exec: Wrong exec result: 2"_qs}));
}

void tst_ExcludeUserInputEventLoop::exit_letsInputInBeforeExecReturns_data()
{
    QTest::addColumn<LoopMember>("request");

    QTest::newRow("quit") << &CExcludeUserInpuEventLoop::quit;
    QTest::newRow("failedQuit") << &CExcludeUserInpuEventLoop::failedQuit;
}

void tst_ExcludeUserInputEventLoop::exit_letsInputInBeforeExecReturns()
{
    QFETCH(LoopMember, request);
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    QList<bool> seen;
    execWith(loop, [&] {
        seen.append(isSeen(receiver));
        (loop.*request)();
        seen.append(isSeen(receiver));
    });
    QCOMPARE(seen, QList<bool>({false, true}));
}

void tst_ExcludeUserInputEventLoop::exit_repeated_logsAgainAndKeepsTheFirstFilterRemoval()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    EventRecorder receiver;
    CExcludeUserInpuEventLoop loop(&receiver);
    bool isLetIn = false;
    const int result = execWith(loop, [&] {
        loop.exit(2);
        loop.exit(3); // finds the loop idle
        isLetIn = isSeen(receiver);
    });
    QCOMPARE(result, 2);
    QVERIFY(isLetIn);
    QCOMPARE(log.records(),
             QStringList({u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 2"_qs,
                          u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 3"_qs,
                          u"ERROR CExcludeUserInpuEventLoop::exec: Wrong exec result: 2"_qs}));
}

void tst_ExcludeUserInputEventLoop::exit_whileIdle_logsAndIsNotRemembered()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CExcludeUserInpuEventLoop loop;
    loop.exit(5);
    QVERIFY(!loop.isRunning());
    const QStringList idleRecord(u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 5"_qs);
    QCOMPARE(log.records(), idleRecord);

    QCOMPARE(execForPasses(loop, 3), 3); // the third pass ends it
    QCOMPARE(log.records(),
             idleRecord + QStringList(u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 0"_qs));
}

QTEST_MAIN(tst_ExcludeUserInputEventLoop)

#include "tst_ExcludeUserInputEventLoop.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/OverlayCalls.h"

#include "utilsDll/dialogs/ProgressPainter.h"

#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;

namespace {

enum class State { Hidden, PendingShow, Visible, PendingHide };
enum class Event { StartAtOnce, StartDelayed, StopAtOnce, StopDelayed };

/*! An overlay over a preview in a shown window. */
class ProgressWindow : public QWidget
{
public:
    ProgressWindow()
    {
        resize(400, 300);
        preview.resize(400, 300);
        show();
    }

    QWidget preview{this};
    ProgressPainter progress{this, &preview};

    void bringTo(State state)
    {
        if (state == State::PendingShow) {
            progress.onStartProgress(true);
        }
        if (state == State::Visible || state == State::PendingHide) {
            progress.onStartProgress(false);
        }
        if (state == State::PendingHide) {
            progress.onStopProgress(true);
        }
    }

    void handle(Event event)
    {
        switch (event) {
        case Event::StartAtOnce:
            return progress.onStartProgress(false);
        case Event::StartDelayed:
            return progress.onStartProgress(true);
        case Event::StopAtOnce:
            return progress.onStopProgress(false);
        case Event::StopDelayed:
            return progress.onStopProgress(true);
        }
    }

    bool isShowDue()
    {
        return delayedCall().isActive(&progress, "show");
    }

    bool isHideDue()
    {
        return delayedCall().isActive(&progress, "onHideTimer");
    }

    /*! Whether an event that was posted before is handled by the end of \a work. */
    bool handlesEvents(const std::function<void()> &work)
    {
        bool isHandled = false;
        QMetaObject::invokeMethod(
            this, [&isHandled] { isHandled = true; }, Qt::QueuedConnection);
        work();
        const bool result = isHandled;
        static_cast<void>(QTest::qWaitFor([&isHandled] { return isHandled; }));
        return result;
    }
};

} // namespace

class tst_ProgressPainterStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void event_inAState_leadsToTheNext_data();
    void event_inAState_leadsToTheNext();
    void startDelayed_showsAfter300Milliseconds();
    void stopDelayed_hidesAfter300Milliseconds();
    void shortProcess_showsNothing();
    void setVisibleFalse_cancelsThePendingShow();
    void setVisibleTrue_leavesThePendingHide();
    void startAtOnce_whileHidingIsDue_keepsItUpWithoutFlicker();
    void startDelayed_whileHidingIsDue_keepsItUpWithoutFlicker();
    void startDelayed_whileVisible_showsNothingNew();
    void startAtOnce_isOnTheScreenBeforeItReturns();
    void stopAtOnce_isOffTheScreenBeforeItReturns();
    void delayed_handlesNoEvents();
    void onHideTimer_hidesAndHandlesEvents();
    void hiddenParent_keepsTheState();
    void animation_runsOnlyWhileVisible();
    void switchedTenThousandTimes_leavesNoTimer();
    void deleted_leavesNoTimer_data();
    void deleted_leavesNoTimer();

private:
    const DelayedTimers m_timers;
};

void tst_ProgressPainterStates::initTestCase()
{
    ProgressWindow window; // what the first showing costs is paid here
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.progress.onStartProgress(false);
}

void tst_ProgressPainterStates::event_inAState_leadsToTheNext_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<Event>("event");
    QTest::addColumn<bool>("isVisible");
    QTest::addColumn<bool>("isShowDue");
    QTest::addColumn<bool>("isHideDue");
    QTest::addColumn<bool>("isVisibleAtLast");

    QTest::newRow("hidden, start") << State::Hidden << Event::StartAtOnce << true << false << false << true;
    QTest::newRow("hidden, delayed start") << State::Hidden << Event::StartDelayed << false << true << false << true;
    QTest::newRow("hidden, stop") << State::Hidden << Event::StopAtOnce << false << false << false << false;
    QTest::newRow("hidden, delayed stop") << State::Hidden << Event::StopDelayed << false << false << true << false;

    QTest::newRow("show due, start") << State::PendingShow << Event::StartAtOnce << true << true << false << true;
    QTest::newRow("show due, delayed start")
        << State::PendingShow << Event::StartDelayed << false << true << false << true;
    QTest::newRow("show due, stop") << State::PendingShow << Event::StopAtOnce << false << false << false << false;
    QTest::newRow("show due, delayed stop")
        << State::PendingShow << Event::StopDelayed << false << false << true << false;

    QTest::newRow("visible, start") << State::Visible << Event::StartAtOnce << true << false << false << true;
    QTest::newRow("visible, delayed start") << State::Visible << Event::StartDelayed << true << true << false << true;
    QTest::newRow("visible, stop") << State::Visible << Event::StopAtOnce << false << false << false << false;
    QTest::newRow("visible, delayed stop") << State::Visible << Event::StopDelayed << true << false << true << false;

    QTest::newRow("hide due, start") << State::PendingHide << Event::StartAtOnce << true << false << false << true;
    QTest::newRow("hide due, delayed start")
        << State::PendingHide << Event::StartDelayed << true << true << false << true;
    QTest::newRow("hide due, stop") << State::PendingHide << Event::StopAtOnce << false << false << false << false;
    QTest::newRow("hide due, delayed stop")
        << State::PendingHide << Event::StopDelayed << true << false << true << false;
}

void tst_ProgressPainterStates::event_inAState_leadsToTheNext()
{
    QFETCH(const State, state);
    QFETCH(const Event, event);
    ProgressWindow window;
    window.bringTo(state);
    window.handle(event);
    QTEST(window.progress.isVisible(), "isVisible");
    QTEST(window.isShowDue(), "isShowDue");
    QTEST(window.isHideDue(), "isHideDue");
    QTRY_VERIFY(!window.isShowDue() && !window.isHideDue());
    QTEST(window.progress.isVisible(), "isVisibleAtLast");
    QCOMPARE(m_timers.count(), window.progress.isVisible() ? 1 : 0); // the animation's
}

void tst_ProgressPainterStates::startDelayed_showsAfter300Milliseconds()
{
    ProgressWindow window;
    const WidgetEvents events(window.progress);
    window.progress.onStartProgress(true);
    QCOMPARE(m_timers.intervals(), QList<int>{300});
    QVERIFY(answerAfter(200, [&] { return !window.progress.isVisible(); }));
    QVERIFY(answerAfter(200, [&] { return window.progress.isVisible(); }));
    QCOMPARE(events.shows, 1);
    QVERIFY(!window.isShowDue());
}

void tst_ProgressPainterStates::stopDelayed_hidesAfter300Milliseconds()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    const WidgetEvents events(window.progress);
    window.progress.onStopProgress(true);
    QCOMPARE(m_timers.intervals(), (QList<int>{200, 300})); // the animation's and that of hiding
    QVERIFY(answerAfter(200, [&] { return window.progress.isVisible(); }));
    QVERIFY(answerAfter(200, [&] { return !window.progress.isVisible(); }));
    QCOMPARE(events.hides, 1);
    QCOMPARE(m_timers.count(), 0);
}

void tst_ProgressPainterStates::shortProcess_showsNothing()
{
    ProgressWindow window;
    const WidgetEvents events(window.progress);
    for (const bool isStopDelayed : {false, true}) {
        window.progress.onStartProgress(true);
        window.progress.onStopProgress(isStopDelayed);
        QVERIFY(answerAfter(600, [&] { return !window.progress.isVisible(); }));
        QCOMPARE(events.shows, 0);
        QCOMPARE(m_timers.count(), 0);
    }
}

void tst_ProgressPainterStates::setVisibleFalse_cancelsThePendingShow()
{
    ProgressWindow window;
    const WidgetEvents events(window.progress);
    window.progress.onStartProgress(true);
    window.progress.setVisible(false);
    QVERIFY(!window.isShowDue());
    QVERIFY(answerAfter(600, [&] { return events.shows == 0; }));
}

void tst_ProgressPainterStates::setVisibleTrue_leavesThePendingHide()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    window.progress.onStopProgress(true);
    window.progress.setVisible(true);
    QVERIFY(window.isHideDue()); // only hiding cancels
    QTRY_VERIFY(!window.progress.isVisible());
}

void tst_ProgressPainterStates::startAtOnce_whileHidingIsDue_keepsItUpWithoutFlicker()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    const WidgetEvents events(window.progress);
    window.progress.onStopProgress(true);
    window.progress.onStartProgress(false);
    QVERIFY(answerAfter(600, [&] { return window.progress.isVisible(); }));
    QCOMPARE(events.hides, 0);
    QCOMPARE(events.shows, 0);
}

void tst_ProgressPainterStates::startDelayed_whileHidingIsDue_keepsItUpWithoutFlicker()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    const WidgetEvents events(window.progress);
    window.progress.onStopProgress(true);
    window.progress.onStartProgress(true);
    QVERIFY(window.progress.isVisible());
    QVERIFY(answerAfter(600, [&] { return window.progress.isVisible(); }));
    QVERIFY(!window.isShowDue());
    QCOMPARE(events.hides, 0);
    QCOMPARE(events.shows, 0);
}

void tst_ProgressPainterStates::startDelayed_whileVisible_showsNothingNew()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    window.progress.move(1, 2);
    const WidgetEvents events(window.progress);
    window.progress.onStartProgress(true);
    QVERIFY(answerAfter(600, [&] { return events.shows == 0; }));
    QCOMPARE(window.progress.pos(), QPoint(1, 2));
}

void tst_ProgressPainterStates::startAtOnce_isOnTheScreenBeforeItReturns()
{
    ProgressWindow window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const WidgetEvents events(window.progress);
    window.progress.onStartProgress(false);
    QVERIFY(events.paintings > 0);
    QVERIFY(window.handlesEvents([&] { window.progress.onStartProgress(false); }));
}

void tst_ProgressPainterStates::stopAtOnce_isOffTheScreenBeforeItReturns()
{
    ProgressWindow window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.progress.onStartProgress(false);
    const WidgetEvents events(window.preview);
    window.progress.onStopProgress(false);
    QVERIFY(events.paintings > 0); // what was under it
    QVERIFY(window.handlesEvents([&] { window.progress.onStopProgress(false); }));
}

void tst_ProgressPainterStates::delayed_handlesNoEvents()
{
    ProgressWindow window;
    QVERIFY(!window.handlesEvents([&] { window.progress.onStartProgress(true); }));
    QVERIFY(!window.handlesEvents([&] { window.progress.onStopProgress(true); }));
}

void tst_ProgressPainterStates::onHideTimer_hidesAndHandlesEvents()
{
    ProgressWindow window;
    window.progress.onStartProgress(false);
    window.progress.onStartProgress(true);
    QVERIFY(window.handlesEvents([&] { QMetaObject::invokeMethod(&window.progress, "onHideTimer"); }));
    QVERIFY(!window.progress.isVisible());
    QVERIFY(!window.isShowDue());
}

void tst_ProgressPainterStates::hiddenParent_keepsTheState()
{
    ProgressWindow window;
    window.hide();
    window.progress.onStartProgress(false);
    QVERIFY(!window.progress.isVisible());
    QVERIFY(!window.progress.isHidden());
    QCOMPARE(m_timers.count(), 0);
    window.show();
    QVERIFY(window.progress.isVisible());
    window.hide();
    QCOMPARE(m_timers.count(), 0);
    window.show();
    QVERIFY(window.progress.isVisible());
}

void tst_ProgressPainterStates::animation_runsOnlyWhileVisible()
{
    ProgressWindow window;
    auto *animation = window.progress.findChild<AnimatedLabel *>();
    const auto isRunning = [animation] { return delayedCall().isActive(animation, "changeImage"); };
    QVERIFY(!isRunning());
    window.progress.onStartProgress(false);
    QVERIFY(isRunning());
    const QImage first = animation->pixmap().toImage();
    QTRY_VERIFY(animation->pixmap().toImage() != first);
    window.progress.onStopProgress(false);
    QVERIFY(!isRunning());
}

void tst_ProgressPainterStates::switchedTenThousandTimes_leavesNoTimer()
{
    ProgressWindow window;
    for (int i = 0; i < 10'000; ++i) {
        window.progress.onStartProgress(i % 2 == 0);
        QVERIFY(m_timers.count() <= 2);
        window.progress.onStopProgress(i % 3 == 0);
        QVERIFY(m_timers.count() <= 2);
    }
    window.progress.onStopProgress(false);
    QVERIFY(!window.progress.isVisible());
    QCOMPARE(m_timers.count(), 0);
    QCOMPARE(window.progress.findChildren<QObject *>().size(), 3); // the layout and two labels
}

void tst_ProgressPainterStates::deleted_leavesNoTimer_data()
{
    QTest::addColumn<State>("state");

    QTest::newRow("hidden") << State::Hidden;
    QTest::newRow("show due") << State::PendingShow;
    QTest::newRow("visible") << State::Visible;
    QTest::newRow("hide due") << State::PendingHide;
}

void tst_ProgressPainterStates::deleted_leavesNoTimer()
{
    QFETCH(const State, state);
    auto window = std::make_unique<ProgressWindow>();
    window->bringTo(state);
    window.reset();
    QCOMPARE(m_timers.count(), 0);
}

QTEST_MAIN(tst_ProgressPainterStates)
#include "tst_ProgressPainterStates.moc"

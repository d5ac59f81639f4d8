// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Host.h"

#include "soak/Messages.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"
#include "utilsDll/eventLoop/OperationCompletionWaiter.h"
#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

using namespace ZYX_zglv6;

namespace {

constexpr qsizetype mostPanels = 3;
constexpr int mostMilliseconds = 30'000; // for an operation that takes some five

CActionManager &gate()
{
    return Singleton<CActionManager>::instance();
}

} // namespace

void Host::clickARow()
{
    auto *button = anyRow()->findChild<QToolButton *>();
    if (!button->isVisible() || button->isDown()) { // the release may end an earlier press, in an exclusive wait too
        return;
    }
    const bool isHeldOut = isInputHeldOut();
    const int before = m_ledger.triggerCount();
    giveInput([button] { QTest::mouseClick(button, Qt::LeftButton); });
    if (!isHeldOut && m_ledger.triggerCount() == before) {
        m_ledger.addProblem(u"the user's click is lost"_qs);
    }
}

void Host::pressARow()
{
    auto *button = anyRow()->findChild<QToolButton *>();
    if (button->isVisible()) {
        giveInput([button] { QTest::mousePress(button, Qt::LeftButton); });
        m_pressed = button;
    }
}

void Host::releaseIt()
{
    if (m_pressed != nullptr) {
        QTest::mouseRelease(m_pressed, Qt::LeftButton);
    }
}

void Host::typeAKey()
{
    m_line->clear();
    const bool isHeldOut = isInputHeldOut();
    giveInput([this] { QTest::keyClick(m_line, Qt::Key_A); });
    if (m_line->text().isEmpty() != isHeldOut) {
        m_ledger.addProblem(isHeldOut ? u"a key came through an exclusive wait"_qs : u"a key is lost"_qs);
    }
}

void Host::clickInAMenu()
{
    QMenu *menu = anyPanel().menu();
    const QList<QAction *> actions = menu->actions();
    const QPoint place = [&] {
        menu->popup(m_window.pos());
        return menu->actionGeometry(actions.at(chance(quint32(actions.size())))).center();
    }();
    giveInput([menu, place] { QTest::mouseClick(menu, Qt::LeftButton, {}, place); });
    menu->hide();
}

void Host::triggerAnAction()
{
    const QList<QAction *> actions = anyPanel().menu()->actions();
    actions.at(chance(quint32(actions.size())))->trigger();
}

void Host::clickARowByCode()
{
    anyRow()->clickButton();
}

void Host::block()
{
    m_ledger.block();
    gate().blockActions();
}

void Host::unBlock()
{
    m_ledger.unBlock();
    gate().unBlockActions();
}

void Host::busyPhase()
{
    block();
    waitForAFlagWithoutInput();
    unBlock();
}

void Host::blockForSomeTime()
{
    gate().blockActionForSomeTime();
}

void Host::forceCommand()
{
    m_ledger.force([] { gate().callLastAction(); });
    gate().saveBoolActionState(); // the control has its new state now
}

void Host::clearLock()
{
    m_ledger.clearLock();
    gate().clearLock();
}

/*! One of the waits of which the process has one at a time; true if \a wait is not refused. */
bool Host::pumpEvents(bool excludeUserInput, const std::function<void()> &wait)
{
    if (m_isPumping) {
        m_ledger.count(u"refused waits"_qs);
        wait();
        return false;
    }
    m_isPumping = true;
    if (excludeUserInput) {
        m_holds.append([] { return true; });
    }
    whileNested(wait);
    if (excludeUserInput) {
        m_holds.removeLast();
    }
    m_isPumping = false;
    return true;
}

void Host::waitForFlag(bool excludeUserInput)
{
    QAtomicInt flag;
    m_work.raiseLater(flag);
    const bool isDone = pumpEvents(excludeUserInput, [&] { waitNonBlockingAtomicIntValue(flag, 1, excludeUserInput); });
    if (isDone && flag.loadAcquire() == 0) {
        m_ledger.addProblem(u"a wait ended too early"_qs);
    }
    waitBlockingAtomicIntValue(flag, 1); // a refused wait has not waited, and the thread still writes to it
}

void Host::waitForAFlag()
{
    waitForFlag(false);
}

void Host::waitForAFlagWithoutInput()
{
    waitForFlag(true);
}

void Host::runExclusiveLoop()
{
    if (m_nesting >= deepestNesting) {
        return;
    }
    CExcludeUserInpuEventLoop loop;
    QTimer::singleShot(int(chance(5)), &loop, &CExcludeUserInpuEventLoop::quit);
    m_holds.append([&loop] { return loop.isRunning(); });
    whileNested([this, &loop] {
        if (loop.exec() != 0) {
            m_ledger.addProblem(u"an exclusive loop ended with an error"_qs);
        }
    });
    m_holds.removeLast();
}

void Host::waitForAnOperation()
{
    if (m_nesting >= deepestNesting) {
        return;
    }
    const bool isBlocked = oneOf(2);
    COperationCompletionWaiter waiter(isBlocked);
    if (isBlocked) {
        m_holds.append([&waiter] { return waiter.isWaiting(); });
    }
    const auto prepare = [&](WorkItem &item) {
        if (!waiter.makeConnection(&item, SIGNAL(result(bool)), true)) {
            m_ledger.addProblem(u"a waiter was not connected"_qs);
        }
    };
    m_work.run(prepare,
               [&](WorkItem & /*item*/) { whileNested([&waiter] { waiter.startWaiting(mostMilliseconds); }); });
    if (isBlocked) {
        m_holds.removeLast();
    }
    if (!waiter.isOperationCompleted() || !waiter.isOperationSuccess()) {
        m_ledger.addProblem(u"an operation has not succeeded"_qs);
    }
}

void Host::waitUntilTimeOut()
{
    if (m_nesting >= deepestNesting) {
        return;
    }
    COperationCompletionWaiter waiter(true);
    m_holds.append([&waiter] { return waiter.isWaiting(); });
    whileNested([this, &waiter] { waiter.startWaiting(int(chance(10))); });
    m_holds.removeLast();
    if (!waiter.isOperationCompleted() || waiter.isOperationSuccess()) {
        m_ledger.addProblem(u"a time-out did not end the wait as failed"_qs);
    }
}

void Host::runAnItem()
{
    const bool isWithoutInput = oneOf(2);
    m_work.run(
        [](WorkItem & /*item*/) {},
        [&](WorkItem &item) { pumpEvents(isWithoutInput, [&] { item.waitExecuteNonBlocking(isWithoutInput); }); });
}

void Host::startAnItem()
{
    m_work.start();
}

void Host::stopAnItem()
{
    m_work.startAndStop();
}

void Host::scheduleACall()
{
    m_delayedCalls.schedule();
}

void Host::discardACall()
{
    m_delayedCalls.discard();
}

void Host::replaceATicker()
{
    m_delayedCalls.replaceATicker();
}

void Host::destroyAnAction()
{
    anyPanel().destroyOneAction(chance(1000));
}

void Host::destroyARow()
{
    anyPanel().destroyOneRow(chance(1000));
}

void Host::destroyAReceiver()
{
    anyPanel().destroyOneReceiver(chance(1000));
}

void Host::addPanel()
{
    auto *panel = new Panel(
        m_ledger, [this] { inASlot(); }, m_window.centralWidget());
    m_window.centralWidget()->layout()->addWidget(panel);
    panel->show();
    m_panels.append(panel);
}

/*! The new panel takes over the state of the old one. */
void Host::replaceAPanel()
{
    const qsizetype index = chance(quint32(m_panels.size()));
    if (!m_panels.at(index)->isDisposable()) {
        clearLock(); // as a host does before it takes commands away
    }
    const QByteArray state = m_panels.at(index)->serialize();
    if (m_panels.size() >= mostPanels || oneOf(2)) {
        delete m_panels.takeAt(index);
    }
    addPanel();
    m_panels.last()->deserialize(state, false, {});
    gate().saveBoolActionState(); // during a block these are the states to go back to
}

/*! The rows are back in their state when they have been changed in between. */
void Host::restoreAPanel()
{
    if (m_ledger.depth() > 0) {
        return; // controls keep their states during a block
    }
    Panel &panel = anyPanel();
    const QByteArray state = panel.serialize();
    for (CSettingsPushButton *row : panel.rows()) {
        row->checkButton(oneOf(2));
        row->setVisible(!oneOf(4));
    }
    panel.deserialize(state, false, {});
    if (!panel.equal(panel.serialize(), state)) {
        m_ledger.addProblem(u"a panel was not restored"_qs);
    }
}

void Host::addProbe()
{
    constexpr int probeId = -1;
    m_probeReceiver = std::make_unique<CommandReceiver>(probeId, m_ledger, [this] { inASlot(); });
    m_probe = std::make_unique<QAction>();
    connect(m_probe.get(), &QAction::triggered, this, [this] { m_ledger.triggered({probeId, false}); });
    gate().addAction(m_probe.get(), m_probeReceiver.get(), "run");
    connect(m_probe.get(), &QAction::triggered, this, [this] { m_ledger.triggerDone({probeId, false}, std::nullopt); });
}

/*! All commands go, and with them what the gate knows of those that went before. */
void Host::beginAnew()
{
    m_ledger.count(u"new beginnings"_qs);
    qDeleteAll(m_panels);
    m_panels.clear();
    m_probe.reset();
    gate().clear();
    m_ledger.clearLock();
    m_deletedReportsAtBeginning = Messages::deletedActionReports();
    addProbe();
    addPanel();
    addPanel();
}

/*! A command that takes its time, now and then. */
void Host::inASlot()
{
    if (m_nesting >= deepestNesting || !oneOf(4)) {
        return;
    }
    ++m_nesting;
    busyPhase();
    --m_nesting;
}

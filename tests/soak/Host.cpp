// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Host.h"

#include "soak/Messages.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cstdio>

using namespace ZYX_zglv6;

namespace {

constexpr int mostDeletedReports = 200'000; // then the gate has been told of enough dead controls to begin anew
constexpr int patienceMs = 30'000; // for what needs a second, on a loaded machine under a sanitizer
constexpr int longestOvertimeMs = 60'000; // for what has not come yet on a slow machine

CActionManager &gate()
{
    return Singleton<CActionManager>::instance();
}

} // namespace

Host::Host(quint32 seed)
    : m_random(seed)
{
    auto *central = new QWidget(&m_window);
    m_line = new QLineEdit(central);
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(m_line);
    m_window.setCentralWidget(central);
    addProbe();
    addPanel();
    addPanel();
    m_window.resize(400, 600);
    m_window.show();
}

const QList<Host::Operation> &Host::operations()
{
    static const QList<Operation> all{
        {"clicks on a row", 30, false, &Host::clickARow},
        {"mouse presses", 10, false, &Host::pressARow},
        {"mouse releases", 10, false, &Host::releaseIt},
        {"keys", 20, false, &Host::typeAKey},
        {"clicks in a menu", 10, false, &Host::clickInAMenu},
        {"triggered actions", 20, false, &Host::triggerAnAction},
        {"rows clicked by code", 20, false, &Host::clickARowByCode},
        {"blocks", 25, true, &Host::block},
        {"unblocks", 30, true, &Host::unBlock},
        {"busy phases", 10, false, &Host::busyPhase},
        {"short delays", 5, false, &Host::blockForSomeTime},
        {"forced commands", 5, false, &Host::forceCommand},
        {"cleared locks", 1, true, &Host::clearLock},
        {"waits with input", 8, false, &Host::waitForAFlag},
        {"waits without input", 8, false, &Host::waitForAFlagWithoutInput},
        {"exclusive loops", 8, false, &Host::runExclusiveLoop},
        {"awaited operations", 8, false, &Host::waitForAnOperation},
        {"time-outs", 5, false, &Host::waitUntilTimeOut},
        {"awaited items", 8, false, &Host::runAnItem},
        {"items", 15, false, &Host::startAnItem},
        {"stopped items", 3, false, &Host::stopAnItem},
        {"scheduled calls", 30, false, &Host::scheduleACall},
        {"discarded calls", 15, false, &Host::discardACall},
        {"replaced tickers", 5, true, &Host::replaceATicker},
        {"tries to destroy an action", 3, true, &Host::destroyAnAction},
        {"tries to destroy a row", 3, true, &Host::destroyARow},
        {"tries to destroy a receiver", 2, true, &Host::destroyAReceiver},
        {"replaced panels", 2, true, &Host::replaceAPanel},
        {"restored panels", 5, true, &Host::restoreAPanel},
    };
    return all;
}

void Host::run(int seconds)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QElapsedTimer sinceQuiet;
    sinceQuiet.start();
    QEventLoop loop;
    QTimer steps;
    connect(&steps, &QTimer::timeout, this, [&] {
        m_watchdog.feed();
        if (m_nesting > 0) {
            return; // in a slot that handles events; its own steps come from whileNested()
        }
        const qint64 overtime = elapsed.elapsed() - seconds * 1000LL;
        if (overtime >= longestOvertimeMs || (overtime >= 0 && missing().isEmpty())) {
            loop.quit();
        } else if (sinceQuiet.elapsed() >= 1500) {
            quietPhase();
            sinceQuiet.restart();
        } else {
            step();
        }
    });
    steps.start(0);
    loop.exec();
    steps.stop();
    finish();
}

void Host::step()
{
    static const unsigned sum = [] {
        unsigned weights = 0;
        for (const Operation &operation : operations()) {
            weights += operation.weight;
        }
        return weights;
    }();
    quint32 place = chance(sum);
    for (const Operation &operation : operations()) {
        if (place >= operation.weight) {
            place -= operation.weight;
            continue;
        }
        if (!operation.isForTopLevel || m_nesting == 0) {
            m_ledger.count(QLatin1String(operation.name));
            (this->*operation.function)();
        }
        return;
    }
}

/*! A second without anything, first behind a block and then without one: only then the replay timer runs out. */
void Host::quietPhase()
{
    m_ledger.count(u"quiet phases"_qs);
    block();
    block();
    if (oneOf(2)) {
        m_probe->trigger();
    } else {
        anyPanel().rows().last()->clickButton(); // this one keeps its receiver
    }
    unBlock();
    waitForReplayTimer();
    if (!m_ledger.remembered().has_value()) {
        m_ledger.addProblem(u"a command was not remembered"_qs);
    }
    while (m_ledger.depth() > 0) {
        unBlock();
    }
    waitUntil([this] { return !m_ledger.remembered().has_value(); }, u"a remembered command is lost"_qs);
    if (Messages::deletedActionReports() - m_deletedReportsAtBeginning > mostDeletedReports || oneOf(3)) {
        beginAnew();
    }
}

void Host::waitForReplayTimer()
{
    waitUntil([] { return !Singleton<CDelayedCall>::instance().isActive(&gate(), "onTimer"); },
              u"the replay timer does not run out"_qs);
}

bool Host::waitUntil(const std::function<bool()> &isDone, const QString &problem)
{
    const bool done = QTest::qWaitFor(isDone, patienceMs);
    if (!done) {
        m_ledger.addProblem(problem);
    }
    m_watchdog.feed();
    return done;
}

void Host::checkProbe()
{
    const auto before = m_ledger.counts().value(u"commands at once"_qs);
    m_probe->trigger();
    if (m_ledger.counts().value(u"commands at once"_qs) != before + 1) {
        m_ledger.addProblem(u"the gate is not open at the end"_qs);
    }
}

void Host::finish()
{
    while (m_ledger.depth() > 0) {
        unBlock();
    }
    waitUntil([this] { return !m_ledger.remembered().has_value(); }, u"the last command is lost"_qs);
    m_nesting = deepestNesting; // from here on slots only tell the ledger
    checkProbe();
    waitForReplayTimer();
    m_delayedCalls.discardAll();
    if (m_delayedCalls.isAnyPending()) {
        m_ledger.addProblem(u"a call is pending after it was discarded"_qs);
    }
    m_work.waitForAll();
    waitUntil([this] { return m_work.isBalanced(); }, u"an item has not told that it finished"_qs);
    waitUntil([] { return !QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents); },
              u"the event loop does not come to rest"_qs);
    if (!m_holds.isEmpty()) {
        m_ledger.addProblem(u"a wait still holds the input out"_qs);
    }
}

/*! What has not come once. */
QStringList Host::missing() const
{
    QStringList names{u"input held out"_qs,    u"commands at once"_qs,    u"commands remembered"_qs,
                      u"commands replayed"_qs, u"commands forced"_qs,     u"delayed calls"_qs,
                      u"repeated calls"_qs,    u"items finished"_qs,      u"actions destroyed"_qs,
                      u"rows destroyed"_qs,    u"receivers destroyed"_qs, u"quiet phases"_qs,
                      u"refused waits"_qs};
    for (const Operation &operation : operations()) {
        names.append(QLatin1String(operation.name));
    }
    names.removeIf([this](const QString &name) { return m_ledger.counts().value(name) > 0; });
    return names;
}

bool Host::report() const
{
    QStringList problems = m_ledger.problems() + Messages::unexpected();
    for (const QString &name : missing()) {
        problems.append(u"this never came: "_qs + name);
    }
    for (auto count = m_ledger.counts().begin(); count != m_ledger.counts().end(); ++count) {
        std::printf("%9d %s\n", count.value(), qPrintable(count.key()));
    }
    std::printf("%9d reports of deleted actions\n", Messages::deletedActionReports());
    for (const QString &problem : problems) {
        std::printf("PROBLEM: %s\n", qPrintable(problem));
    }
    return problems.isEmpty();
}

quint32 Host::chance(quint32 count)
{
    return quint32(m_random()) % count;
}

bool Host::oneOf(quint32 count)
{
    return chance(count) == 0;
}

Panel &Host::anyPanel()
{
    return *m_panels.at(chance(quint32(m_panels.size())));
}

CSettingsPushButton *Host::anyRow()
{
    const QList<CSettingsPushButton *> rows = anyPanel().rows();
    return rows.at(chance(quint32(rows.size())));
}

bool Host::isInputHeldOut() const
{
    return std::any_of(m_holds.begin(), m_holds.end(), [](const auto &isHolding) { return isHolding(); });
}

/*! The user's input by way of the application: if it is held out, no command may come of it. */
void Host::giveInput(const std::function<void()> &input)
{
    const bool isHeldOut = isInputHeldOut();
    const int before = m_ledger.triggerCount();
    input();
    if (!isHeldOut) {
        return;
    }
    m_ledger.count(u"input held out"_qs);
    if (m_ledger.triggerCount() != before) {
        m_ledger.addProblem(u"the user's input came through an exclusive wait"_qs);
    }
}

/*! Does \a work, which handles events, while further steps come from inside. */
void Host::whileNested(const std::function<void()> &work)
{
    QObject context; // what has not come by the end of the work does not come
    ++m_nesting;
    if (m_nesting < deepestNesting) {
        for (quint32 index = chance(4); index > 0; --index) {
            QTimer::singleShot(int(chance(3)), &context, [this] { step(); });
        }
    }
    work();
    --m_nesting;
}

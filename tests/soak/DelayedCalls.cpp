// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/DelayedCalls.h"

#include "utilsDll/eventLoop/DelayedCall.h"

#include <algorithm>

using namespace ZYX_zglv6;

namespace {

constexpr const char *tickMethod = "tick";
constexpr const char *tickWithMethod = "tickWith";

CDelayedCall &delayedCall()
{
    return Singleton<CDelayedCall>::instance();
}

} // namespace

Ticker::Ticker(CommandLedger &ledger)
    : m_ledger(ledger)
{
}

void Ticker::tick()
{
    check(tickPending, tickMethod);
}

void Ticker::tickWith(int number, bool flag)
{
    if (number != 7 || !flag) {
        m_ledger.addProblem(u"a delayed call has lost its arguments"_qs);
    }
    check(tickWithPending, tickWithMethod);
}

void Ticker::check(Pending &pending, const char *method)
{
    m_ledger.count(pending == Pending::Repeating ? u"repeated calls"_qs : u"delayed calls"_qs);
    if (pending == Pending::None) {
        m_ledger.addProblem(u"a delayed call that nobody asked for: "_qs + QLatin1String(method));
    }
    if (delayedCall().isActive(this, method) != (pending == Pending::Repeating)) {
        m_ledger.addProblem(u"wrongly pending in its own slot: "_qs + QLatin1String(method));
    }
    if (pending == Pending::Single) {
        pending = Pending::None;
    }
}

DelayedCalls::DelayedCalls(CommandLedger &ledger, std::mt19937 &random)
    : m_ledger(ledger)
    , m_random(random)
{
    constexpr int tickerCount = 5;
    for (int index = 0; index < tickerCount; ++index) {
        m_tickers.push_back(std::make_unique<Ticker>(m_ledger));
    }
}

DelayedCalls::~DelayedCalls() = default;

Ticker &DelayedCalls::anyTicker()
{
    return *m_tickers.at(m_random() % m_tickers.size());
}

void DelayedCalls::checkPending(Ticker &ticker)
{
    if (delayedCall().isActive(&ticker, tickMethod) != (ticker.tickPending != Ticker::Pending::None)
        || delayedCall().isActive(&ticker, tickWithMethod) != (ticker.tickWithPending != Ticker::Pending::None)) {
        m_ledger.addProblem(u"pending calls are not those that were asked for"_qs);
    }
}

void DelayedCalls::schedule()
{
    Ticker &ticker = anyTicker();
    const bool isSingle = m_random() % 4 != 0;
    const int msec = int(m_random() % 20) + (isSingle ? 0 : 1); // a repeating 0 leaves no time for anything else
    const auto pending = isSingle ? Ticker::Pending::Single : Ticker::Pending::Repeating;
    if (m_random() % 2 == 0) {
        delayedCall().invoke(msec, &ticker, tickMethod, isSingle);
        ticker.tickPending = pending;
    } else if (isSingle) {
        delayedCall().invokeSingleShotWithArgs(msec, &ticker, tickWithMethod, 7, true);
        ticker.tickWithPending = pending;
    } else {
        delayedCall().invokeWithArgs(msec, &ticker, tickWithMethod, 7, true);
        ticker.tickWithPending = pending;
    }
    checkPending(ticker);
}

void DelayedCalls::discard()
{
    Ticker &ticker = anyTicker();
    const bool isAll = m_random() % 2 == 0;
    delayedCall().discard(&ticker, isAll ? nullptr : tickMethod);
    ticker.tickPending = Ticker::Pending::None;
    if (isAll) {
        ticker.tickWithPending = Ticker::Pending::None;
    }
    checkPending(ticker);
}

void DelayedCalls::replaceATicker()
{
    auto &ticker = m_tickers.at(m_random() % m_tickers.size());
    const bool isRepeating
        = ticker->tickPending == Ticker::Pending::Repeating || ticker->tickWithPending == Ticker::Pending::Repeating;
    if (isRepeating || m_random() % 2 == 0) { // a single call may be left to find nobody
        delayedCall().discard(ticker.get(), nullptr);
    }
    ticker = std::make_unique<Ticker>(m_ledger);
    checkPending(*ticker);
}

void DelayedCalls::discardAll()
{
    for (const auto &ticker : m_tickers) {
        delayedCall().discard(ticker.get(), nullptr);
        ticker->tickPending = Ticker::Pending::None; // from now on every call is a problem
        ticker->tickWithPending = Ticker::Pending::None;
    }
}

bool DelayedCalls::isAnyPending() const
{
    return std::any_of(m_tickers.begin(), m_tickers.end(), [](const auto &ticker) {
        return delayedCall().isActive(ticker.get(), tickMethod) || delayedCall().isActive(ticker.get(), tickWithMethod);
    });
}

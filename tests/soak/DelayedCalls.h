// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soak/CommandLedger.h"

#include <QtCore/QObject>

#include <memory>
#include <random>
#include <vector>

/*! The receiver of delayed calls of two methods, with what is pending of each. */
class Ticker : public QObject
{
    Q_OBJECT

public:
    enum class Pending { None, Single, Repeating };

    explicit Ticker(CommandLedger &ledger);

    Pending tickPending = Pending::None;
    Pending tickWithPending = Pending::None;

public Q_SLOTS:
    void tick();
    void tickWith(int number, bool flag);

private:
    void check(Pending &pending, const char *method);

    CommandLedger &m_ledger;
};

/*! Random delayed calls to tickers that come and go. */
class DelayedCalls
{
public:
    DelayedCalls(CommandLedger &ledger, std::mt19937 &random);
    ~DelayedCalls();

    DelayedCalls(const DelayedCalls &) = delete;
    DelayedCalls &operator=(const DelayedCalls &) = delete;

    void schedule();
    void discard();
    void replaceATicker();

    void discardAll();
    bool isAnyPending() const;

private:
    Ticker &anyTicker();
    void checkPending(Ticker &ticker);

    CommandLedger &m_ledger;
    std::mt19937 &m_random;
    std::vector<std::unique_ptr<Ticker>> m_tickers;
};

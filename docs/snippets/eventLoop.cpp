// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/eventLoop/OperationCompletionWaiter.h"
#include "utilsDll/eventLoop/RunnableItem.h"
#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QThreadPool>

using namespace ZYX_zglv6;

namespace Snippets {

//! [delayed call]
void updateSoon(QObject *preview)
{
    // However often this is called, the preview updates once, 300 ms after the last call.
    Singleton<CDelayedCall>::instance().invoke(300, preview, "updateNow", true);
}
//! [delayed call]

//! [repeated call]
void blink(QObject *lamp, int period)
{
    Singleton<CDelayedCall>::instance().invokeWithArgs(period, lamp, "flash", 50); // void flash(int msec)
}

void stopBlinking(QObject *lamp)
{
    Singleton<CDelayedCall>::instance().discard(lamp, nullptr); // all its calls
}
//! [repeated call]

//! [runnable]
class CDevelopment final : public CQRunnableItem
{
public:
    explicit CDevelopment(int seconds)
        : m_left(seconds)
    {
        setAutoDelete(false); // it lives with the one that waits for it
    }

protected:
    void execute() override
    {
        while (m_left > 0 && !stopRequired().value()) {
            --m_left;
        }
    }

private:
    int m_left;
};
//! [runnable]

//! [waiter]
bool develop(int seconds, int limitMs)
{
    CDevelopment development(seconds);
    QThreadPool pool;
    COperationCompletionWaiter waiter(true); // holds the user's input out
    if (!waiter.makeConnection(&development, SIGNAL(finished()), false)) {
        return false;
    }
    pool.start(&development);
    waiter.startWaiting(limitMs);

    development.stop();
    pool.waitForDone(); // the item must not go before its run has ended
    return waiter.isOperationCompleted() && waiter.isOperationSuccess(); // not completed: the program is leaving
}
//! [waiter]

//! [wait]
struct CExposureDone final : public ICustomWaitPredicate
{
    explicit CExposureDone(const QAtomicInt &framesLeft)
        : m_framesLeft(framesLeft)
    {
    }

    bool done() const override
    {
        return m_framesLeft.loadAcquire() <= 0;
    }

private:
    const QAtomicInt &m_framesLeft;
};

void waitForExposure(const QAtomicInt &framesLeft)
{
    waitNonBlocking(CExposureDone(framesLeft), true);
}
//! [wait]

} // namespace Snippets

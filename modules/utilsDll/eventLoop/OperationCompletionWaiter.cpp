// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/OperationCompletionWaiter.h"

#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QEventLoop>
#include <QtCore/QScopeGuard>

namespace ZYX_zglv6 {

class Q_DECL_HIDDEN COperationCompletionWaiter::ILoop
{
public:
    virtual ~ILoop() = default;
    virtual int exec() = 0;
    virtual void quit() = 0;
    virtual bool isRunning() const = 0;
};

class Q_DECL_HIDDEN COperationCompletionWaiter::CBlockedEventLoop final : public ILoop
{
public:
    int exec() override
    {
        return m_loop.exec();
    }

    void quit() override
    {
        m_loop.exit(0);
    }

    bool isRunning() const override
    {
        return m_loop.isRunning();
    }

private:
    CExcludeUserInpuEventLoop m_loop;
};

class Q_DECL_HIDDEN COperationCompletionWaiter::CNonBlockedEventLoop final : public ILoop
{
public:
    int exec() override
    {
        if (m_loop.isRunning()) {
            return m_loop.exec(QEventLoop::AllEvents); // Qt's own warning, and -1
        }
        const auto end = qScopeGuard([this] {
            if (m_loop.isRunning()) { // an exception passes, and Qt does not mark the end
                m_loop.exit();
            }
        });
        return m_loop.exec(QEventLoop::AllEvents);
    }

    void quit() override
    {
        m_loop.exit(0);
    }

    bool isRunning() const override
    {
        return m_loop.isRunning();
    }

private:
    QEventLoop m_loop;
};

COperationCompletionWaiter::COperationCompletionWaiter(bool blocked, QObject *parent)
    : QObject(parent)
    , m_loop(makeLoop(blocked))
{
}

COperationCompletionWaiter::COperationCompletionWaiter(const QObject *sender, const char *signal, bool withResult,
                                                       bool blocked, QObject *parent)
    : QObject(parent)
{
    makeConnection(sender, signal, withResult);
    m_loop = makeLoop(blocked);
}

COperationCompletionWaiter::COperationCompletionWaiter(const QList<std::pair<QObject *, QString>> &signalList,
                                                       bool blocked, QObject *parent)
    : QObject(parent)
{
    for (const auto &[sender, signal] : signalList) {
        makeConnection(sender, signal.toLatin1().constData(), false);
    }
    m_loop = makeLoop(blocked);
}

COperationCompletionWaiter::~COperationCompletionWaiter() = default;

std::unique_ptr<COperationCompletionWaiter::ILoop> COperationCompletionWaiter::makeLoop(bool blocked)
{
    if (blocked) {
        return std::make_unique<CBlockedEventLoop>();
    }
    return std::make_unique<CNonBlockedEventLoop>();
}

bool COperationCompletionWaiter::makeConnection(const QObject *sender, const char *signal, bool withResult)
{
    ASSERT(sender != nullptr);
    ASSERT(signal != nullptr);
    const char *slot = withResult ? "1setOperationCompleted( bool )" : "1setOperationCompleted()";
    return bool(connect(sender, signal, this, slot, Qt::AutoConnection));
}

bool COperationCompletionWaiter::isOperationCompleted() const
{
    return m_isCompleted;
}

bool COperationCompletionWaiter::isOperationSuccess() const
{
    ASSERT_X_RETURN_BUT_GO_ON(m_isCompleted, "Wait until operation completed");
    return m_isSuccess;
}

bool COperationCompletionWaiter::isWaiting() const
{
    return m_loop != nullptr && m_loop->isRunning();
}

void COperationCompletionWaiter::setOperationCompleted(bool bSuccess)
{
    setOperationEnded(bSuccess);
}

void COperationCompletionWaiter::setOperationFailed()
{
    setOperationEnded(false);
}

void COperationCompletionWaiter::startWaiting(int nTimeout)
{
    if (m_isCompleted) {
        return;
    }
    ZYX_LOG('D', u"Start waiting: " + QString::number(nTimeout));
    if (nTimeout >= 0) {
        // Not discarded when the wait ends earlier: of a completed operation, or a waiter that has gone, it changes
        // nothing.
        Singleton<CDelayedCall>::instance().invoke(nTimeout, this, "setOperationFailed", true);
    }
    m_loop->exec();
    ZYX_LOG('D', u"End waiting: " + QString::number(nTimeout));
}

void COperationCompletionWaiter::setOperationEnded(bool success)
{
    if (m_isCompleted) {
        return;
    }
    m_isCompleted = true;
    m_isSuccess = success;
    if (isWaiting()) {
        m_loop->quit();
    }
}

} // namespace ZYX_zglv6

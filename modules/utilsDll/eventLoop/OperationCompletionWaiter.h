// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <utility>

namespace ZYX_zglv6 {

/*!
    Makes one step of an asynchronous operation: connect the signals that tell of its end, then call startWaiting().

    The first report decides and a later one is ignored; one that comes before the wait is not lost. A waiter serves one
    operation. It is made and waits on one thread, which for a blocked wait is the main one; signals may come from any
    other. Do not destroy it while it waits.
*/
class UTILSDLL_EXPORT COperationCompletionWaiter : public QObject
{
    Q_OBJECT

public:
    /*! With \a blocked the user's input is held out while it waits. */
    explicit COperationCompletionWaiter(bool blocked = true, QObject *parent = nullptr);
    explicit COperationCompletionWaiter(QObject *parent) = delete; // a pointer is no answer to blocked

    /*! Makes the connection at once. Whether it could be made is lost: who must know uses makeConnection(). */
    COperationCompletionWaiter(const QObject *sender, const char *signal, bool withResult, bool blocked,
                               QObject *parent);

    /*! The same for several senders, each with a signal without result. */
    COperationCompletionWaiter(const QList<std::pair<QObject *, QString>> &signalList, bool blocked, QObject *parent);

    ~COperationCompletionWaiter() override;

    /*!
        Takes \a signal, as SIGNAL() writes it, for the operation's end. \a withResult: its first argument, a bool,
        tells of success; else its coming is success. False if the connection could not be made.
    */
    bool makeConnection(const QObject *sender, const char *signal, bool withResult);

    bool isOperationCompleted() const;

    /*! False also for an operation that ran out of time. Before the end it is false, and an assertion is reported. */
    bool isOperationSuccess() const;

    bool isWaiting() const;

protected Q_SLOTS:
    void setOperationCompleted(bool bSuccess = true);
    void setOperationFailed();

public Q_SLOTS:
    /*!
        Handles events until the operation has ended, or \a nTimeout milliseconds have gone, which counts as failure;
        a negative \a nTimeout sets no limit. Returns at once if the operation has ended already, and without its end
        if the program leaves. Called while it waits, it returns at once too, but the limit then counts for that wait.
    */
    void startWaiting(int nTimeout = -1);

private:
    class ILoop;
    class CBlockedEventLoop;
    class CNonBlockedEventLoop;

    static std::unique_ptr<ILoop> makeLoop(bool blocked);
    void setOperationEnded(bool success);

    bool m_isCompleted = false;
    bool m_isSuccess = false;
    std::unique_ptr<ILoop> m_loop;
};

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>

#include <map>

namespace ZYX_zglv6 {

/*! The pending calls of one thread, on which it lives. */
class CDelayedInvoker : public QObject
{
public:
    struct methodData
    {
        QPointer<QObject> receiver;
        const char *method; // of static lifetime
        bool isSingleShot;
        QList<QVariant> arguments;

        /*!
            Calls the slot, directly or queued as the receiver's thread demands. False if there is nothing to call, or
            with arguments that can't be passed; of an unknown slot only Qt warns.
        */
        static bool invokeMethod(QObject *receiver, const char *method, const QList<QVariant> &arguments);
    };

    /*! Replaces a pending call of the same receiver and method. A negative \a msec only ends that one. */
    void schedule(int msec, const methodData &call);

    /*! Ends the receiver's pending call of \a method, or with null all its calls. */
    void discard(const QObject *receiver, const char *method);

    bool isActive(const QObject *receiver, const char *method) const;

protected:
    void timerEvent(QTimerEvent *event) override;

    // Open to a subclass that looks at them. Of a receiver that has died, the entries under its old address stay
    // behind: nothing tells of its death.
    std::map<int, methodData> m_timers; // by timer id
    std::multimap<const QObject *, int> m_receivers; // timer ids by receiver, within one in order of insertion

private:
    bool isPending(int timerId, const QObject *receiver, const char *method) const;
    void removeFromIndex(const QObject *receiver, int timerId);
};

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "eventLoop/CallRecorder.h"
#include "eventLoop/ObjectCensus.h"

#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <functional>
#include <optional>

inline ZYX_zglv6::CDelayedCall &delayedCall()
{
    return Singleton<ZYX_zglv6::CDelayedCall>::instance();
}

/*! The timers of all delayed calls of this thread. Make it before the thread's first such call. */
class DelayedTimers
{
public:
    DelayedTimers()
    {
        const ObjectCensus census;
        CallRecorder receiver;
        delayedCall().invoke(0, &receiver, "tick", true);
        m_invoker = ObjectCensus::latestMadeHere();
        delayedCall().discard(&receiver, nullptr);
    }

    qsizetype count() const
    {
        return intervals().size();
    }

    /*! In milliseconds, from the shortest to the longest. */
    QList<int> intervals() const
    {
        QList<int> result;
        for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(m_invoker)) {
            result.append(timer.interval);
        }
        std::sort(result.begin(), result.end());
        return result;
    }

private:
    QObject *m_invoker;
};

/*!
    What \a question answers when a call comes that is asked for now, for \a msec later. All that was due earlier has
    come by then, and nothing that is due later, however slow the machine.
*/
inline bool answerAfter(int msec, const std::function<bool()> &question)
{
    CallRecorder marker;
    std::optional<bool> answer;
    marker.reaction = [&](const RecordedCall & /*call*/) { answer = question(); };
    delayedCall().invoke(msec, &marker, "tick", true);
    static_cast<void>(QTest::qWaitFor([&] { return answer.has_value(); }, 60'000));
    return answer.value();
}

/*! Counts what happens to a widget. */
class WidgetEvents : public QObject
{
public:
    explicit WidgetEvents(QWidget &widget)
        : m_widget(widget)
    {
        widget.installEventFilter(this);
    }

    int shows = 0;
    int hides = 0;
    int paintings = 0;
    QPoint placeWhenShown;

    bool eventFilter(QObject * /*object*/, QEvent *event) override
    {
        shows += int(event->type() == QEvent::Show);
        if (event->type() == QEvent::Show) {
            placeWhenShown = m_widget.pos();
        }
        hides += int(event->type() == QEvent::Hide);
        paintings += int(event->type() == QEvent::Paint);
        return false;
    }

private:
    const QWidget &m_widget;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/CallRecorder.h"

#include <algorithm>

qsizetype CallRecorder::count(const QByteArray &method) const
{
    return std::count_if(calls.begin(), calls.end(), [&](const RecordedCall &each) { return each.method == method; });
}

void CallRecorder::tick()
{
    record("tick", {});
}

void CallRecorder::tock()
{
    record("tock", {});
}

void CallRecorder::changeImage()
{
    record("changeImage", {});
}

void CallRecorder::call()
{
    record("call", {});
}

void CallRecorder::call(bool a)
{
    record("call", {a});
}

void CallRecorder::call(bool a, int b)
{
    record("call", {a, b});
}

void CallRecorder::call(bool a, int b, double c)
{
    record("call", {a, b, c});
}

void CallRecorder::call(bool a, int b, double c, const QString &d)
{
    record("call", {a, b, c, d});
}

void CallRecorder::call(bool a, int b, double c, const QString &d, QObject *e)
{
    record("call", {a, b, c, d, QVariant::fromValue(e)});
}

void CallRecorder::call(bool a, int b, double c, const QString &d, QObject *e, bool f)
{
    record("call", {a, b, c, d, QVariant::fromValue(e), f});
}

void CallRecorder::call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g)
{
    record("call", {a, b, c, d, QVariant::fromValue(e), f, g});
}

void CallRecorder::call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g, double h)
{
    record("call", {a, b, c, d, QVariant::fromValue(e), f, g, h});
}

void CallRecorder::call(bool a, int b, double c, const QString &d, QObject *e, bool f, int g, double h,
                        const QString &i)
{
    record("call", {a, b, c, d, QVariant::fromValue(e), f, g, h, i});
}

void CallRecorder::record(const QByteArray &method, const QVariantList &arguments)
{
    const RecordedCall recorded{method, arguments};
    calls.append(recorded);
    if (const auto react = reaction) { // a copy: the recorder may go in it
        react(recorded);
    }
}

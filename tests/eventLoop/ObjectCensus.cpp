// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/ObjectCensus.h"

#include <atomic>

// Qt's door for debugging tools: functions that each QObject calls when it comes and goes.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

constexpr int hookOfConstructor = 3;
constexpr int hookOfDestructor = 4;

thread_local int madeCount = 0;
thread_local QObject *latest = nullptr;
std::atomic<const QObject *> watched = nullptr;

void objectMade(QObject *object)
{
    ++madeCount;
    latest = object;
}

void objectGone(QObject *object)
{
    const QObject *expected = object;
    watched.compare_exchange_strong(expected, nullptr);
}

} // namespace

ObjectCensus::ObjectCensus()
{
    qtHookData[hookOfConstructor] = reinterpret_cast<quintptr>(&objectMade);
    qtHookData[hookOfDestructor] = reinterpret_cast<quintptr>(&objectGone);
}

ObjectCensus::~ObjectCensus()
{
    qtHookData[hookOfConstructor] = 0;
    qtHookData[hookOfDestructor] = 0;
}

int ObjectCensus::madeHere()
{
    return madeCount;
}

QObject *ObjectCensus::latestMadeHere()
{
    return latest;
}

void ObjectCensus::watch(const QObject *object)
{
    watched = object;
}

bool ObjectCensus::isWatchedGone()
{
    return watched == nullptr;
}

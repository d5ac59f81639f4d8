// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>

/*! Sees all QObjects of the process come and go while it lives. One at a time. */
class ObjectCensus
{
public:
    ObjectCensus();
    ~ObjectCensus();
    Q_DISABLE_COPY_MOVE(ObjectCensus)

    /*! How many were made on the calling thread, since that thread began. */
    static int madeHere();

    /*! The latest of them. */
    static QObject *latestMadeHere();

    /*! From now on tells whether \a object is destroyed. One at a time. */
    static void watch(const QObject *object);
    static bool isWatchedGone();
};

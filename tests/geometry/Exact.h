// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QLineF>
#include <QtCore/QPointF>
#include <QtCore/QString>

/*! All digits of a number, for comparisons without the tolerance that QCOMPARE and QPointF have. */
inline QString exact(double value)
{
    return QString::number(value + 0.0, 'g', 17); // -0.0 is written as 0
}

inline QString exact(const QPointF &p)
{
    return u"(%1, %2)"_qs.arg(exact(p.x()), exact(p.y()));
}

inline QString exact(const QLineF &line)
{
    return u"%1 to %2"_qs.arg(exact(line.p1()), exact(line.p2()));
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QLineF>
#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRandomGenerator>
#include <QtGui/QPolygonF>

#include <optional>

/*
    The same questions answered the slow and plain way, as something to compare with: projections and cross products in
    long double, an outline as many points, the inside by the angle that the outline turns through.
*/
namespace ByHand {

/*! Shapes and points that are the same in each run; shapes lie some hundred units away from the origin. */
class Dice
{
public:
    explicit Dice(quint32 seed);

    double between(double low, double high);
    int count(int low, int high);
    QPointF point(double low, double high);
    QLineF line(double low, double high);
    QRectF rectangle();
    /*! Corners on an ellipse: convex. */
    QPolygonF convexPolygon();
    /*! Corners at any distance from a middle that sees them all: mostly not convex, never crossing itself. */
    QPolygonF starPolygon();

private:
    QPolygonF polygonAround(double narrowest);

    QRandomGenerator m_generator;
};

/*! Where a perpendicular meets a line: 0 is its start, 1 its end. */
struct Projection
{
    QPointF foot;
    double distance;
    double at;
};

Projection project(const QPointF &p, const QLineF &line);
double distanceToSegment(const QPointF &p, const QLineF &line);

QList<QLineF> outlineOf(const QPolygonF &polygon);
double distanceToOutline(const QPointF &p, const QPolygonF &polygon);
/*! The smallest distance to \a count points of each edge. */
double sampledDistanceToOutline(const QPointF &p, const QPolygonF &polygon, int count);
bool isInside(const QPointF &p, const QPolygonF &polygon);

/*! What can be seen of an outline at right angles to it. */
struct View
{
    std::optional<QPointF> nearestFoot;
    bool isClear = true; /*!< False where so little decides that rounding might. */
};

View viewFrom(const QPointF &p, const QPolygonF &polygon);

} // namespace ByHand

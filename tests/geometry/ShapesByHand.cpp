// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ShapesByHand.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace ByHand {

namespace {

constexpr double margin = 1e-4; // in units, or in parts of an edge; shapes are tens of units large

long double cross(const QPointF &origin, const QPointF &a, const QPointF &b)
{
    const long double ax = static_cast<long double>(a.x()) - origin.x();
    const long double ay = static_cast<long double>(a.y()) - origin.y();
    const long double bx = static_cast<long double>(b.x()) - origin.x();
    const long double by = static_cast<long double>(b.y()) - origin.y();
    return ax * by - ay * bx;
}

double distanceOf(const QPointF &a, const QPointF &b)
{
    const long double dx = static_cast<long double>(a.x()) - b.x();
    const long double dy = static_cast<long double>(a.y()) - b.y();
    return static_cast<double>(std::sqrt(dx * dx + dy * dy));
}

/*! Whether two segments cross: the ends of each lie on both sides of the other. */
bool areCrossing(const QLineF &a, const QLineF &b)
{
    const bool splitsA = (cross(b.p1(), b.p2(), a.p1()) > 0) != (cross(b.p1(), b.p2(), a.p2()) > 0);
    const bool splitsB = (cross(a.p1(), a.p2(), b.p1()) > 0) != (cross(a.p1(), a.p2(), b.p2()) > 0);
    return splitsA && splitsB;
}

/*! Whether an end of one segment lies so near to the other that it is hard to say whether they cross. */
bool areTouching(const QLineF &a, const QLineF &b)
{
    return distanceToSegment(a.p1(), b) < margin || distanceToSegment(a.p2(), b) < margin
        || distanceToSegment(b.p1(), a) < margin || distanceToSegment(b.p2(), a) < margin;
}

} // namespace

Dice::Dice(quint32 seed)
    : m_generator(seed)
{
}

double Dice::between(double low, double high)
{
    return low + (high - low) * m_generator.generateDouble();
}

int Dice::count(int low, int high)
{
    return m_generator.bounded(low, high + 1);
}

QPointF Dice::point(double low, double high)
{
    const double x = between(low, high);
    return {x, between(low, high)};
}

QLineF Dice::line(double low, double high)
{
    const QPointF start = point(low, high);
    return {start, point(low, high)};
}

QRectF Dice::rectangle()
{
    const QPointF corner = point(300, 400);
    const double width = between(1, 100);
    return {corner, QSizeF(width, between(1, 100))};
}

QPolygonF Dice::convexPolygon()
{
    return polygonAround(1);
}

QPolygonF Dice::starPolygon()
{
    return polygonAround(0.2);
}

QPolygonF Dice::polygonAround(double narrowest)
{
    const QPointF middle = point(300, 500);
    const QPointF radii = point(20, 100);
    const int corners = count(4, 12);
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * (i + between(0.1, 0.9)) / corners; // two are less than pi apart
        const double part = narrowest < 1 ? between(narrowest, 1) : 1;
        polygon.append(middle + part * QPointF(radii.x() * std::cos(angle), radii.y() * std::sin(angle)));
    }
    return polygon;
}

Projection project(const QPointF &p, const QLineF &line)
{
    const long double dx = static_cast<long double>(line.x2()) - line.x1();
    const long double dy = static_cast<long double>(line.y2()) - line.y1();
    const long double px = static_cast<long double>(p.x()) - line.x1();
    const long double py = static_cast<long double>(p.y()) - line.y1();
    const long double squaredLength = dx * dx + dy * dy;
    const long double at = (px * dx + py * dy) / squaredLength;
    const QPointF foot(static_cast<double>(line.x1() + at * dx), static_cast<double>(line.y1() + at * dy));
    const long double distance = std::abs(px * dy - py * dx) / std::sqrt(squaredLength);
    return {foot, static_cast<double>(distance), static_cast<double>(at)};
}

double distanceToSegment(const QPointF &p, const QLineF &line)
{
    const Projection projection = project(p, line);
    const bool isBeside = projection.at >= 0 && projection.at <= 1;
    return isBeside ? projection.distance : std::min(distanceOf(p, line.p1()), distanceOf(p, line.p2()));
}

QList<QLineF> outlineOf(const QPolygonF &polygon)
{
    QList<QLineF> outline;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        outline.append(QLineF(polygon.at(i), polygon.at((i + 1) % polygon.size())));
    }
    return outline;
}

double distanceToOutline(const QPointF &p, const QPolygonF &polygon)
{
    double smallest = std::numeric_limits<double>::infinity();
    for (const QLineF &edge : outlineOf(polygon)) {
        smallest = std::min(smallest, distanceToSegment(p, edge));
    }
    return smallest;
}

double sampledDistanceToOutline(const QPointF &p, const QPolygonF &polygon, int count)
{
    double smallest = std::numeric_limits<double>::infinity();
    for (const QLineF &edge : outlineOf(polygon)) {
        for (int i = 0; i < count; ++i) {
            smallest = std::min(smallest, distanceOf(p, edge.pointAt(static_cast<double>(i) / count)));
        }
    }
    return smallest;
}

bool isInside(const QPointF &p, const QPolygonF &polygon)
{
    double turned = 0;
    for (const QLineF &edge : outlineOf(polygon)) {
        const double from = std::atan2(edge.y1() - p.y(), edge.x1() - p.x());
        const double to = std::atan2(edge.y2() - p.y(), edge.x2() - p.x());
        turned += std::remainder(to - from, 2 * std::numbers::pi);
    }
    return std::lround(turned / (2 * std::numbers::pi)) % 2 != 0;
}

View viewFrom(const QPointF &p, const QPolygonF &polygon)
{
    View view;
    double nearest = std::numeric_limits<double>::infinity();
    const QList<QLineF> edges = outlineOf(polygon);
    for (qsizetype i = 0; i < edges.size(); ++i) {
        const Projection projection = project(p, edges.at(i));
        view.isClear = view.isClear && std::abs(projection.at) > margin && std::abs(projection.at - 1) > margin
            && projection.distance > margin;
        bool isSeen = projection.at > 0 && projection.at < 1;
        for (qsizetype j = 0; j < edges.size() && isSeen; ++j) {
            const QLineF way(projection.foot, p);
            view.isClear = view.isClear && (i == j || !areTouching(way, edges.at(j)));
            isSeen = i == j || !areCrossing(way, edges.at(j));
        }
        view.isClear = view.isClear && !(isSeen && std::abs(projection.distance - nearest) < margin);
        if (isSeen && projection.distance < nearest) {
            nearest = projection.distance;
            view.nearestFoot = projection.foot;
        }
    }
    return view;
}

} // namespace ByHand

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/geometry/GeometryHelpers.h"

#include <algorithm>
#include <cmath>

namespace ZYX_zglv6 {

namespace {

constexpr double flatness = 1e-7; // below it a line counts as horizontal or vertical

/*! Whether \a value lies between \a from and \a to, in either order, widened by \a tolerance. */
bool isInExtent(double value, double from, double to, double tolerance)
{
    return (from + tolerance >= value && value + tolerance >= to)
        || (value + tolerance >= from && to + tolerance >= value);
}

bool isInExtent(const QPointF &p, const QLineF &line, double tolerance)
{
    return isInExtent(p.x(), line.x1(), line.x2(), tolerance) && isInExtent(p.y(), line.y1(), line.y2(), tolerance);
}

QList<QLineF> edgesOf(const QList<QPointF> &points)
{
    QList<QLineF> edges;
    if (points.isEmpty()) {
        return edges;
    }
    edges.reserve(points.size());
    for (qsizetype i = 1; i < points.size(); ++i) {
        edges.append(QLineF(points.at(i - 1), points.at(i)));
    }
    edges.append(QLineF(points.first(), points.last()));
    return edges;
}

QPolygonF polygonOf(const QRectF &rect)
{
    return QPolygonF({rect.bottomLeft(), rect.topLeft(), rect.topRight(), rect.bottomRight()});
}

/*! Whether another line stands between \a p and its \a foot on line \a index. */
bool isObstructed(const QList<QLineF> &lines, qsizetype index, const QPointF &foot, const QPointF &p, double tolerance)
{
    const QLineF way(foot, p);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QPointF crossing;
        if (i != index && way.intersects(lines.at(i), &crossing) == QLineF::BoundedIntersection
            && !auxIsPointBelongsLine(lines.at(index), crossing, tolerance)) {
            return true;
        }
    }
    return false;
}

/*! The point nearest to \a p, of equally near ones the first; (0, 0) without points. */
QPointF nearestOf(const QList<QPointF> &points, const QPointF &p)
{
    const auto isNearer
        = [&p](const QPointF &a, const QPointF &b) { return auxGetDistance(a, p) < auxGetDistance(b, p); };
    const auto nearest = std::min_element(points.begin(), points.end(), isNearer);
    return nearest == points.end() ? QPointF() : *nearest;
}

/*! Its ends as they are among the points; a QRectF would round the right and the lower one. */
struct BoundingBox
{
    explicit BoundingBox(const QList<QPointF> &points)
        : left(points.first().x())
        , top(points.first().y())
        , right(left)
        , bottom(top)
    {
        for (const QPointF &p : points) {
            left = std::min(left, p.x());
            top = std::min(top, p.y());
            right = std::max(right, p.x());
            bottom = std::max(bottom, p.y());
        }
    }

    double left;
    double top;
    double right;
    double bottom;
};

/*! A parallel to \a line through the centre of \a box that reaches across it, from its right or lower end. */
QLineF parallelAcross(const BoundingBox &box, const QLineF &line)
{
    const double centreX = (box.left + box.right) / 2;
    const double centreY = (box.top + box.bottom) / 2;
    if (line.y1() == line.y2()) {
        return {box.right, centreY, box.left, centreY};
    }
    if (line.x1() == line.x2()) {
        return {centreX, box.bottom, centreX, box.top};
    }
    const double slope = (line.y1() - line.y2()) / (line.x1() - line.x2());
    const auto yAt = [&](double x) { return slope * x + centreY - slope * centreX; };
    return {box.right, yAt(box.right), box.left, yAt(box.left)};
}

} // namespace

double auxGetDistance(const QPointF &p)
{
    return std::hypot(p.x(), p.y());
}

double auxGetDistance(const QPointF &a, const QPointF &b)
{
    return auxGetDistance(b - a);
}

QPointF auxGetPerpendicularCoord(const QLineF &line, const QPointF &p)
{
    const double dx = line.dx();
    const double dy = line.dy();
    if (std::abs(dy) < flatness) {
        return {p.x(), line.y2()};
    }
    if (std::abs(dx) < flatness) {
        return {line.x2(), p.y()};
    }
    const double c = dx * p.x() / dy + p.y();
    const double x = (dy * line.x1() / dx + c - line.y1()) / (dx / dy + dy / dx);
    return {x, c - dx * x / dy};
}

bool auxIsPointBelongsLine(const QLineF &line, const QPointF &p, double tolerance)
{
    const QPointF foot = auxGetPerpendicularCoord(line, p);
    return auxGetDistance(foot, p) < tolerance && isInExtent(foot, line, tolerance);
}

QPointF auxGetPerpendicularToNearestLine(const QList<QLineF> &lines, const QPointF &p, double tolerance)
{
    for (const QLineF &line : lines) {
        if (auxIsPointBelongsLine(line, p, tolerance)) {
            return auxGetPerpendicularCoord(line, p);
        }
    }
    QList<QPointF> candidates;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QPointF foot = auxGetPerpendicularCoord(lines.at(i), p);
        if (QLineF(foot, p).intersects(lines.at(i)) != QLineF::NoIntersection && isInExtent(foot, lines.at(i), 0)
            && !isObstructed(lines, i, foot, p, tolerance)) {
            candidates.append(foot);
        }
    }
    return nearestOf(candidates, p);
}

QPointF auxGetPerpendicularToNearestLine(const QPolygonF &polygon, const QPointF &p, double tolerance)
{
    return auxGetPerpendicularToNearestLine(edgesOf(polygon), p, tolerance);
}

QPointF auxGetPerpendicularToNearestLine(const QRectF &rect, const QPointF &p, double tolerance)
{
    if (rect.width() <= 0 || rect.height() <= 0) {
        return {};
    }
    const QList<QLineF> edges{{rect.bottomRight(), rect.bottomLeft()},
                              {rect.bottomLeft(), rect.topLeft()},
                              {rect.topLeft(), rect.topRight()},
                              {rect.topRight(), rect.bottomRight()}};
    return auxGetPerpendicularToNearestLine(edges, p, tolerance);
}

QPointF auxGetIntersectedPoint(const QRectF &rect, QLineF &line)
{
    const QList<QLineF> edges{{rect.topLeft(), rect.bottomLeft()},
                              {rect.topLeft(), rect.topRight()},
                              {rect.bottomLeft(), rect.bottomRight()},
                              {rect.topRight(), rect.bottomRight()}};
    for (const QLineF &edge : edges) {
        QPointF crossing;
        if (line.intersects(edge, &crossing) == QLineF::BoundedIntersection) {
            return crossing;
        }
    }
    return {};
}

QLineF auxGetParallelLine(const QList<QPointF> &points, const QLineF &line)
{
    if (points.isEmpty()) {
        return {};
    }
    const QLineF parallel = parallelAcross(BoundingBox(points), line);
    QList<QPointF> crossings;
    for (const QLineF &edge : edgesOf(points)) {
        QPointF crossing;
        if (edge.intersects(parallel, &crossing) == QLineF::BoundedIntersection) {
            crossings.append(crossing);
        }
    }
    return crossings.size() < 2 ? QLineF() : QLineF(crossings.at(0), crossings.at(1));
}

QPointF auxGetPointForImageCorner(const QPolygonF &polygon, const QPointF &p, double tolerance)
{
    const QPointF foot = auxGetPerpendicularToNearestLine(polygon, p, tolerance);
    const bool isThere = foot.x() != 0 || foot.y() != 0; // exactly: QPointF compares with a tolerance of its own
    return isThere ? foot : nearestOf(polygon, p);
}

QPointF auxGetPointForImageCorner(const QRectF &rect, const QPointF &p, double tolerance)
{
    return auxGetPointForImageCorner(polygonOf(rect), p, tolerance);
}

bool auxContainsPointIncludingBorders(const QPolygonF &polygon, const QPointF &p, double tolerance)
{
    const QList<QLineF> edges = edgesOf(polygon);
    return polygon.containsPoint(p, Qt::OddEvenFill)
        || std::any_of(edges.begin(), edges.end(),
                       [&](const QLineF &edge) { return auxIsPointBelongsLine(edge, p, tolerance); });
}

bool auxContainsPointIncludingBorders(const QRectF &rect, const QPointF &p, double tolerance)
{
    return auxContainsPointIncludingBorders(polygonOf(rect), p, tolerance);
}

bool auxContainsPointsIncludingBorders(const QRectF &rect, const QList<QPointF> &points, double tolerance)
{
    const QPolygonF polygon = polygonOf(rect);
    return std::all_of(points.begin(), points.end(),
                       [&](const QPointF &p) { return auxContainsPointIncludingBorders(polygon, p, tolerance); });
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exact.h"
#include "ShapesByHand.h"

#include "utilsDll/geometry/GeometryHelpers.h"

#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <future>

using namespace ZYX_zglv6;

namespace {

constexpr int cases = 5000;
constexpr int decidedAtLeast = cases * 9 / 10; // rounding may decide the rest
constexpr double rounding = 1e-9; // shapes are some hundred units away, with coordinates good to 1e-13

bool isNear(const QPointF &a, const QPointF &b, double distance)
{
    return std::abs(a.x() - b.x()) <= distance && std::abs(a.y() - b.y()) <= distance;
}

QString told(int number, const QPointF &first, const QPointF &second)
{
    return u"case %1: %2 and %3"_qs.arg(number).arg(exact(first), exact(second));
}

/*! A point inside: a mean of the corners, each with a weight of its own. */
QPointF pointInside(ByHand::Dice &dice, const QPolygonF &convex)
{
    QPointF sum;
    double weights = 0;
    for (const QPointF &corner : convex) {
        const double weight = dice.between(0.01, 1);
        sum += weight * corner;
        weights += weight;
    }
    return sum / weights;
}

/*! A line between two points: flat, upright or neither. */
QLineF lineOfAnyDirection(ByHand::Dice &dice, int number)
{
    QLineF line = dice.line(0, 100);
    if (number % 4 == 0) {
        line.setP2(QPointF(line.x2(), line.y1()));
    } else if (number % 4 == 1) {
        line.setP2(QPointF(line.x1(), line.y2()));
    }
    return line;
}

/*! How much the general formula of a foot enlarges a rounding error. */
double steepness(const QLineF &line)
{
    const double ratio = std::abs(line.dx() / line.dy());
    return std::isfinite(ratio) && ratio > 0 ? 1 + ratio + 1 / ratio : 1;
}

} // namespace

class tst_GeometryProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distance_isTheRootOfTheSquares();
    void foot_isTheProjection();
    void pointBelongsLine_isDecidedByItsProjection();
    void nearestFoot_insideAConvexPolygon_isTheNearestPointOfTheOutline();
    void nearestFoot_ofAStar_isTheNearestThatIsSeen();
    void nearestFoot_onTheOutline_isTheProjection();
    void imageCorner_isTheFootOrTheNearestCorner();
    void containsPoint_isDecidedByTheTurnsOfTheOutlineOrTheDistance();
    void rectangle_isTakenAsItsPolygon();
    void intersectedPoint_isTheFirstEdgesCrossing();
    void parallelLine_liesInTheConvexOutline();
    void manyThreads_findTheSame();
};

/*! By Pythagoras; and it is the same from both ends, as the squares are. */
void tst_GeometryProperties::distance_isTheRootOfTheSquares()
{
    ByHand::Dice dice(1);
    for (int i = 0; i < cases; ++i) {
        const QPointF a = dice.point(-1000, 1000);
        const QPointF b = dice.point(-1000, 1000);
        const long double dx = static_cast<long double>(a.x()) - b.x();
        const long double dy = static_cast<long double>(a.y()) - b.y();
        const auto distance = static_cast<double>(std::sqrt(dx * dx + dy * dy));
        if (std::abs(auxGetDistance(a, b) - distance) > rounding
            || std::abs(auxGetDistance(b - a) - distance) > rounding
            || exact(auxGetDistance(a, b)) != exact(auxGetDistance(b, a))) {
            QFAIL(qPrintable(told(i, a, b)));
        }
    }
}

/*! A perpendicular has one foot, so the scalar product must lead to the same. */
void tst_GeometryProperties::foot_isTheProjection()
{
    ByHand::Dice dice(2);
    int decided = 0;
    for (int i = 0; i < cases; ++i) {
        const QLineF line = lineOfAnyDirection(dice, i);
        const QPointF p = dice.point(-1000, 1000);
        if (line.length() < 1) {
            continue; // lengthened a thousand times, its own rounding shows
        }
        const QPointF foot = auxGetPerpendicularCoord(line, p);
        if (!isNear(foot, ByHand::project(p, line).foot, rounding * steepness(line))) {
            QFAIL(qPrintable(told(i, p, foot)));
        }
        ++decided;
    }
    QVERIFY(decided > decidedAtLeast);
}

/*! Near to the line, and its foot in the box around the segment, widened on each side: that is all that is asked. */
void tst_GeometryProperties::pointBelongsLine_isDecidedByItsProjection()
{
    ByHand::Dice dice(3);
    int decided = 0;
    int belonging = 0;
    for (int i = 0; i < cases; ++i) {
        const QLineF line = lineOfAnyDirection(dice, i);
        const QPointF p = dice.point(-20, 120);
        const double tolerance = dice.between(1, 60);
        const ByHand::Projection projection = ByHand::project(p, line);
        const QRectF box = QRectF(line.p1(), line.p2()).normalized();
        const double beyondX = std::max(box.left() - projection.foot.x(), projection.foot.x() - box.right());
        const double beyondY = std::max(box.top() - projection.foot.y(), projection.foot.y() - box.bottom());
        const double excess = std::max({projection.distance, beyondX, beyondY}) - tolerance;
        if (line.length() < 1 || std::abs(excess) < rounding * steepness(line)) {
            continue;
        }
        if (auxIsPointBelongsLine(line, p, tolerance) != (excess < 0)) {
            QFAIL(qPrintable(told(i, p, projection.foot)));
        }
        ++decided;
        belonging += excess < 0 ? 1 : 0;
    }
    QVERIFY(decided > decidedAtLeast);
    QVERIFY(belonging > cases / 10 && belonging < cases * 9 / 10);
}

/*!
    From inside, the circle that just touches a convex outline touches it within an edge, so the nearest point is a
    foot; nothing lies between, as that would be nearer.
*/
void tst_GeometryProperties::nearestFoot_insideAConvexPolygon_isTheNearestPointOfTheOutline()
{
    constexpr int samples = 100;
    ByHand::Dice dice(4);
    for (int i = 0; i < cases; ++i) {
        const QPolygonF polygon = dice.convexPolygon();
        const QPointF p = pointInside(dice, polygon);
        const QPointF foot = auxGetPerpendicularToNearestLine(polygon, p, 1e-6);
        const double distance = auxGetDistance(foot, p);
        const double sampled = ByHand::sampledDistanceToOutline(p, polygon, samples);
        constexpr double betweenSamples = 200.0 / samples / 2; // no edge is longer than the largest radius twice
        if (ByHand::distanceToOutline(foot, polygon) > rounding * 1000 || distance > sampled + rounding
            || sampled > distance + betweenSamples) {
            QFAIL(qPrintable(told(i, p, foot)));
        }
    }
}

/*! A foot counts if it lies on its edge and the way there crosses no other; all of that is asked of each edge alone. */
void tst_GeometryProperties::nearestFoot_ofAStar_isTheNearestThatIsSeen()
{
    ByHand::Dice dice(5);
    int decided = 0;
    int seen = 0;
    for (int i = 0; i < cases; ++i) {
        const QPolygonF polygon = dice.starPolygon();
        const QPointF p = polygon.boundingRect().center() + dice.point(-80, 80);
        const ByHand::View view = ByHand::viewFrom(p, polygon);
        if (!view.isClear) {
            continue;
        }
        const QPointF foot = auxGetPerpendicularToNearestLine(polygon, p, 1e-6);
        if (!isNear(foot, view.nearestFoot.value_or(QPointF()), rounding * 1000)) {
            QFAIL(qPrintable(told(i, p, foot)));
        }
        ++decided;
        seen += view.nearestFoot ? 1 : 0;
    }
    QVERIFY(decided > decidedAtLeast);
    QVERIFY(seen > cases / 2 && seen < decided);
}

/*! The edge that the point belongs to decides before all feet; far enough from the others, it is the only one. */
void tst_GeometryProperties::nearestFoot_onTheOutline_isTheProjection()
{
    constexpr double tolerance = 0.01;
    ByHand::Dice dice(6);
    int decided = 0;
    for (int i = 0; i < cases; ++i) {
        const QPolygonF polygon = i % 2 == 0 ? dice.starPolygon() : dice.convexPolygon();
        QList<QLineF> edges = ByHand::outlineOf(polygon);
        const QLineF edge = edges.takeAt(dice.count(0, static_cast<int>(edges.size()) - 1));
        const QPointF onEdge = edge.pointAt(dice.between(0, 1));
        const double off = dice.between(-0.9, 0.9) * tolerance;
        const QPointF p = onEdge + QPointF(edge.normalVector().dx(), edge.normalVector().dy()) * off / edge.length();
        const auto isClose = [&](const QLineF &other) { return ByHand::distanceToSegment(p, other) < 3 * tolerance; };
        if (std::any_of(edges.cbegin(), edges.cend(), isClose)) {
            continue;
        }
        for (const QPointF &foot : {auxGetPerpendicularToNearestLine(polygon, p, tolerance),
                                    auxGetPointForImageCorner(polygon, p, tolerance)}) {
            if (!isNear(foot, onEdge, rounding * 1000)) {
                QFAIL(qPrintable(told(i, p, foot)));
            }
        }
        ++decided;
    }
    QVERIFY(decided > decidedAtLeast);
}

/*! Where no edge is seen at right angles only corners are left. The origin, far from the shapes, means "none". */
void tst_GeometryProperties::imageCorner_isTheFootOrTheNearestCorner()
{
    ByHand::Dice dice(7);
    int corners = 0;
    for (int i = 0; i < cases; ++i) {
        const QPolygonF polygon = dice.starPolygon();
        const QPointF p = polygon.boundingRect().center() + dice.point(-200, 200);
        const QPointF foot = auxGetPerpendicularToNearestLine(polygon, p, 1e-6);
        const QPointF found = auxGetPointForImageCorner(polygon, p, 1e-6);
        const bool isFoot = foot.x() != 0 || foot.y() != 0;
        const bool isNearest = std::all_of(polygon.cbegin(), polygon.cend(), [&](const QPointF &corner) {
            return QLineF(p, found).length() <= QLineF(p, corner).length() + rounding;
        });
        if (isFoot ? exact(found) != exact(foot) : !isNearest || !polygon.contains(found)) {
            QFAIL(qPrintable(told(i, p, found)));
        }
        corners += isFoot ? 0 : 1;
    }
    QVERIFY(corners > cases / 20);
}

/*!
    A closed line's turns around a point are odd where a ray crosses it an odd number of times. Nearer to the outline
    than the tolerance a point is on it; one on it is no farther than the tolerance across and both ways beyond an end.
*/
void tst_GeometryProperties::containsPoint_isDecidedByTheTurnsOfTheOutlineOrTheDistance()
{
    ByHand::Dice dice(8);
    int decided = 0;
    int onOutline = 0;
    int inside = 0;
    for (int i = 0; i < cases; ++i) {
        QPolygonF polygon = dice.starPolygon();
        if (i % 2 == 0) {
            polygon.swapItemsAt(0, 2); // now it crosses itself
        }
        const QPointF p = polygon.boundingRect().center() + dice.point(-60, 60);
        const double tolerance = dice.between(0.1, 5);
        const double distance = ByHand::distanceToOutline(p, polygon);
        const bool isOn = distance < tolerance - rounding;
        const bool isIn = distance > rounding && ByHand::isInside(p, polygon);
        if (!isOn && !isIn && distance < 2 * tolerance) {
            continue; // it depends on the edges' directions
        }
        if (auxContainsPointIncludingBorders(polygon, p, tolerance) != (isOn || isIn)) {
            QFAIL(qPrintable(told(i, p, QPointF(distance, tolerance))));
        }
        ++decided;
        onOutline += isOn && !isIn ? 1 : 0;
        inside += isIn ? 1 : 0;
    }
    QVERIFY(decided > decidedAtLeast);
    QVERIFY(onOutline > cases / 50 && inside > cases / 10 && inside < cases * 9 / 10);
}

/*! A rectangle is its corners' polygon, or for feet one that begins at the bottom right. */
void tst_GeometryProperties::rectangle_isTakenAsItsPolygon()
{
    ByHand::Dice dice(9);
    for (int i = 0; i < cases; ++i) {
        const QRectF rect = i % 2 == 0 ? dice.rectangle() : dice.rectangle().toAlignedRect();
        const QPointF raw = rect.center() + dice.point(-120, 120);
        const QPointF p = i % 2 == 0 ? raw : raw.toPoint(); // whole numbers: many ties, corners and borders
        const double tolerance = i % 3 == 0 ? 0 : dice.count(1, 12) / 4.0;
        const QPolygonF corners({rect.bottomLeft(), rect.topLeft(), rect.topRight(), rect.bottomRight()});
        const QPolygonF edges({rect.bottomRight(), rect.bottomLeft(), rect.topLeft(), rect.topRight()});
        const QPointF foot = auxGetPerpendicularToNearestLine(rect, p, tolerance);
        const bool isContained = auxContainsPointIncludingBorders(rect, p, tolerance);
        if (exact(foot) != exact(auxGetPerpendicularToNearestLine(edges, p, tolerance))
            || exact(auxGetPointForImageCorner(rect, p, tolerance))
                != exact(auxGetPointForImageCorner(corners, p, tolerance))
            || isContained != auxContainsPointIncludingBorders(corners, p, tolerance)
            || isContained != auxContainsPointsIncludingBorders(rect, {rect.center(), p}, tolerance)) {
            QFAIL(qPrintable(told(i, p, foot)));
        }
    }
}

/*! An edge is upright or flat, so the crossing's other coordinate is a rule of three. */
void tst_GeometryProperties::intersectedPoint_isTheFirstEdgesCrossing()
{
    ByHand::Dice dice(10);
    int crossed = 0;
    for (int i = 0; i < cases; ++i) {
        const QRectF rect = dice.rectangle();
        QLineF line = dice.line(280, 520);
        const auto inX = [&](double x) { return x > rect.left() && x < rect.right(); };
        const auto inY = [&](double y) { return y > rect.top() && y < rect.bottom(); };
        const auto atX = [&](double x) { return line.y1() + line.dy() * (x - line.x1()) / line.dx(); };
        const auto atY = [&](double y) { return line.x1() + line.dx() * (y - line.y1()) / line.dy(); };
        const auto passesX = [&](double x) { return (line.x1() < x) != (line.x2() < x) && inY(atX(x)); };
        const auto passesY = [&](double y) { return (line.y1() < y) != (line.y2() < y) && inX(atY(y)); };
        QPointF crossing;
        if (passesX(rect.left())) {
            crossing = {rect.left(), atX(rect.left())};
        } else if (passesY(rect.top())) {
            crossing = {atY(rect.top()), rect.top()};
        } else if (passesY(rect.bottom())) {
            crossing = {atY(rect.bottom()), rect.bottom()};
        } else if (passesX(rect.right())) {
            crossing = {rect.right(), atX(rect.right())};
        }
        const QPointF found = auxGetIntersectedPoint(rect, line);
        if (!isNear(found, crossing, rounding * 1000)) {
            QFAIL(qPrintable(told(i, rect.center(), found)));
        }
        crossed += crossing.isNull() ? 0 : 1;
    }
    QVERIFY(crossed > cases / 10 && crossed < cases * 9 / 10);
}

/*!
    An outline touches all four sides of its bounding box, so a line through the box's centre has parts of it on both
    sides and crosses it: a convex one twice, first on the edge that comes first.
*/
void tst_GeometryProperties::parallelLine_liesInTheConvexOutline()
{
    ByHand::Dice dice(11);
    int decided = 0;
    for (int i = 0; i < cases; ++i) {
        const QPolygonF polygon = dice.convexPolygon();
        const QLineF line = lineOfAnyDirection(dice, i);
        const QPointF centre = polygon.boundingRect().center();
        const QLineF across = line.translated(centre - line.p1());
        const auto isMet = [&](const QPointF &corner) { return ByHand::project(corner, across).distance < 1e-3; };
        if (line.length() < 1 || std::any_of(polygon.cbegin(), polygon.cend(), isMet)) {
            continue; // a corner is two crossings
        }
        const QLineF found = auxGetParallelLine(polygon, line);
        const QList<QLineF> edges = ByHand::outlineOf(polygon);
        const auto isOn = [](const QPointF &p) {
            return [p](const QLineF &edge) { return ByHand::distanceToSegment(p, edge) < rounding * 1000; };
        };
        const auto first = std::find_if(edges.cbegin(), edges.cend(), isOn(found.p1()));
        const auto second = std::find_if(edges.cbegin(), edges.cend(), isOn(found.p2()));
        const double sine = (found.dx() * line.dy() - found.dy() * line.dx()) / (found.length() * line.length());
        if (first >= second || second == edges.cend() || std::abs(sine) > rounding * 1000
            || ByHand::project(centre, found).distance > rounding * 1000) {
            QFAIL(qPrintable(told(i, found.p1(), found.p2())));
        }
        ++decided;
    }
    QVERIFY(decided > decidedAtLeast);
}

/*! Pure functions have nothing that threads could share. */
void tst_GeometryProperties::manyThreads_findTheSame()
{
    const auto findAll = [] {
        ByHand::Dice dice(12);
        QString found;
        for (int i = 0; i < cases / 10; ++i) {
            const QPolygonF polygon = dice.starPolygon();
            const QPointF p = polygon.boundingRect().center() + dice.point(-120, 120);
            found += exact(auxGetPointForImageCorner(polygon, p, 1)) + u' '
                + exact(auxGetParallelLine(polygon, QLineF(polygon.first(), p))) + u'\n';
        }
        return found;
    };
    const QString alone = findAll();
    std::array<std::future<QString>, 4> threads;
    for (std::future<QString> &thread : threads) {
        thread = std::async(std::launch::async, findAll);
    }
    for (std::future<QString> &thread : threads) {
        QCOMPARE(thread.get(), alone);
    }
}

QTEST_GUILESS_MAIN(tst_GeometryProperties)
#include "tst_GeometryProperties.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exact.h"

#include "utilsDll/geometry/GeometryHelpers.h"

#include <QtTest/QTest>

#include <cmath>
#include <type_traits>

using namespace ZYX_zglv6;

namespace {

const QPolygonF
    square({{10, 20}, {10, 10}, {20, 10}, {20, 20}}); // the corners of squareRect, in the order of its edges
const QRectF squareRect(10, 10, 10, 10);

} // namespace

class tst_GeometryHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distance_isALength_data();
    void distance_isALength();
    void foot_isOnTheInfiniteLine_data();
    void foot_isOnTheInfiniteLine();
    void foot_ofAlmostFlatLine_isThatOfAFlatOne_data();
    void foot_ofAlmostFlatLine_isThatOfAFlatOne();
    void foot_justAboveTheFlatness_isGeneralAndFinite_data();
    void foot_justAboveTheFlatness_isGeneralAndFinite();
    void pointBelongsLine_within_data();
    void pointBelongsLine_within();
    void pointBelongsLine_toleranceZero_isFalseForAnyPoint();
    void intersectedPoint_isOnTheFirstEdge_data();
    void intersectedPoint_isOnTheFirstEdge();
    void intersectedPoint_leavesTheLine();
    void containsPoint_inPolygon_data();
    void containsPoint_inPolygon();
    void containsPoint_inRectangleAndItsPolygon_areTheSame_data();
    void containsPoint_inRectangleAndItsPolygon_areTheSame();
    void containsPoint_toleranceZero_isWhatThePolygonSays();
    void containsPoint_inFlatRectangle_isOnItsBorder();
    void containsPoints_needsThemAll_data();
    void containsPoints_needsThemAll();
};

void tst_GeometryHelpers::distance_isALength_data()
{
    QTest::addColumn<QPointF>("a");
    QTest::addColumn<QPointF>("b");
    QTest::addColumn<double>("distance");

    QTest::newRow("three, four, five") << QPointF(0, 0) << QPointF(3, 4) << 5.0;
    QTest::newRow("negative") << QPointF(0, 0) << QPointF(-3, -4) << 5.0;
    QTest::newRow("away from the origin") << QPointF(7, -2) << QPointF(12, 10) << 13.0;
    QTest::newRow("along x") << QPointF(-1.5, 2) << QPointF(2.5, 2) << 4.0;
    QTest::newRow("along y") << QPointF(2, 7) << QPointF(2, -1) << 8.0;
    QTest::newRow("none") << QPointF(7, 8) << QPointF(7, 8) << 0.0;
    QTest::newRow("diagonal") << QPointF(1, 1) << QPointF(2, 2) << std::sqrt(2.0);
}

void tst_GeometryHelpers::distance_isALength()
{
    QFETCH(QPointF, a);
    QFETCH(QPointF, b);
    QFETCH(double, distance);

    QCOMPARE(exact(auxGetDistance(a, b)), exact(distance));
    QCOMPARE(exact(auxGetDistance(b, a)), exact(distance));
    QCOMPARE(exact(auxGetDistance(b - a)), exact(distance));
}

void tst_GeometryHelpers::foot_isOnTheInfiniteLine_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<QPointF>("foot");

    QTest::newRow("flat") << QLineF(1, 7, 9, 7) << QPointF(4, 2) << QPointF(4, 7);
    QTest::newRow("flat, beyond its end") << QLineF(1, 7, 9, 7) << QPointF(40, 2) << QPointF(40, 7);
    QTest::newRow("flat, backward") << QLineF(9, 7, 1, 7) << QPointF(4, 2) << QPointF(4, 7);
    QTest::newRow("upright") << QLineF(7, 1, 7, 9) << QPointF(2, 4) << QPointF(7, 4);
    QTest::newRow("upright, beyond its end") << QLineF(7, 1, 7, 9) << QPointF(2, -40) << QPointF(7, -40);
    QTest::newRow("upright, backward") << QLineF(7, 9, 7, 1) << QPointF(2, 4) << QPointF(7, 4);
    QTest::newRow("no length: as if flat") << QLineF(3, 4, 3, 4) << QPointF(7, 9) << QPointF(7, 4);
    QTest::newRow("rising") << QLineF(0, 0, 10, 10) << QPointF(10, 0) << QPointF(5, 5);
    QTest::newRow("rising, backward") << QLineF(10, 10, 0, 0) << QPointF(10, 0) << QPointF(5, 5);
    QTest::newRow("falling") << QLineF(1, 0, 0, 1) << QPointF(1, 1) << QPointF(0.5, 0.5);
    QTest::newRow("away from the origin") << QLineF(2, 1, 6, 9) << QPointF(10, 5) << QPointF(5.2, 7.4);
    QTest::newRow("at its start") << QLineF(1, 2, 5, 10) << QPointF(5, 0) << QPointF(1, 2);
    QTest::newRow("before its start") << QLineF(3, 4, -1, 12) << QPointF(0, 0) << QPointF(4, 2);
    QTest::newRow("p is on it") << QLineF(0, 0, 4, 2) << QPointF(6, 3) << QPointF(6, 3);
}

void tst_GeometryHelpers::foot_isOnTheInfiniteLine()
{
    QFETCH(QLineF, line);
    QFETCH(QPointF, p);

    QTEST(auxGetPerpendicularCoord(line, p), "foot");
}

void tst_GeometryHelpers::foot_ofAlmostFlatLine_isThatOfAFlatOne_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("foot");

    QTest::newRow("dy just below 1e-7: y of the end") << QLineF(0, 0, 10, 9.9e-8) << QPointF(3, 9.9e-8);
    QTest::newRow("dy just above -1e-7") << QLineF(0, 0, 10, -9.9e-8) << QPointF(3, -9.9e-8);
    QTest::newRow("the other way: y of the end") << QLineF(10, 9.9e-8, 0, 0) << QPointF(3, 0);
    QTest::newRow("dx just below 1e-7: x of the end") << QLineF(0, 0, 9.9e-8, 10) << QPointF(9.9e-8, 5);
    QTest::newRow("dx just above -1e-7") << QLineF(0, 0, -9.9e-8, 10) << QPointF(-9.9e-8, 5);
    QTest::newRow("the other way: x of the end") << QLineF(9.9e-8, 10, 0, 0) << QPointF(0, 5);
    QTest::newRow("both below: flat goes first") << QLineF(0, 0, 5e-8, 9e-8) << QPointF(3, 9e-8);
}

void tst_GeometryHelpers::foot_ofAlmostFlatLine_isThatOfAFlatOne()
{
    QFETCH(QLineF, line);
    QFETCH(QPointF, foot);

    QCOMPARE(exact(auxGetPerpendicularCoord(line, QPointF(3, 5))), exact(foot));
}

void tst_GeometryHelpers::foot_justAboveTheFlatness_isGeneralAndFinite_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("foot"); // of (3, 5): along the line by 3 + 5 dy, or 5 + 3 dx

    QTest::newRow("dy 1e-7") << QLineF(0, 0, 1, 1e-7) << QPointF(3 + 5e-7, 3e-7);
    QTest::newRow("dy just above 1e-7") << QLineF(0, 0, 1, 1.1e-7) << QPointF(3 + 5.5e-7, 3.3e-7);
    QTest::newRow("dy just below -1e-7") << QLineF(0, 0, 1, -1.1e-7) << QPointF(3 - 5.5e-7, -3.3e-7);
    QTest::newRow("dy 5e-7") << QLineF(0, 0, 1, 5e-7) << QPointF(3 + 2.5e-6, 1.5e-6);
    QTest::newRow("dx 1e-7") << QLineF(0, 0, 1e-7, 1) << QPointF(5e-7, 5 + 3e-7);
    QTest::newRow("dx just above 1e-7") << QLineF(0, 0, 1.1e-7, 1) << QPointF(5.5e-7, 5 + 3.3e-7);
    QTest::newRow("dx just below -1e-7") << QLineF(0, 0, -1.1e-7, 1) << QPointF(-5.5e-7, 5 - 3.3e-7);
    QTest::newRow("dx 5e-7") << QLineF(0, 0, 5e-7, 1) << QPointF(2.5e-6, 5 + 1.5e-6);
}

void tst_GeometryHelpers::foot_justAboveTheFlatness_isGeneralAndFinite()
{
    constexpr double lostDigits = 1e-8; // c is up to 3e7 here; a flat line's foot is 3e-7 or more away
    QFETCH(QLineF, line);
    QFETCH(QPointF, foot);

    const QPointF found = auxGetPerpendicularCoord(line, QPointF(3, 5));
    QVERIFY(std::isfinite(found.x()) && std::isfinite(found.y()));
    QVERIFY2(std::abs(found.x() - foot.x()) < lostDigits, qPrintable(exact(found)));
    QVERIFY2(std::abs(found.y() - foot.y()) < lostDigits, qPrintable(exact(found)));
}

void tst_GeometryHelpers::pointBelongsLine_within_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<bool>("belongs");

    const QLineF flat(10, 20, 30, 20);
    QTest::newRow("on it") << flat << QPointF(15, 20) << 0.1 << true;
    QTest::newRow("0.5 off the end, tolerance 1") << flat << QPointF(30.5, 20) << 1.0 << true;
    QTest::newRow("1.0 off the end: border included") << flat << QPointF(31, 20) << 1.0 << true;
    QTest::newRow("more than 1.0 off the end") << flat << QPointF(31.125, 20) << 1.0 << false;
    QTest::newRow("1.0 off the start: border included") << flat << QPointF(9, 20) << 1.0 << true;
    QTest::newRow("more than 1.0 off the start") << flat << QPointF(8.875, 20) << 1.0 << false;
    QTest::newRow("1.0 off across: strictly smaller") << flat << QPointF(15, 21) << 1.0 << false;
    QTest::newRow("1.0 off across, other side") << flat << QPointF(15, 19) << 1.0 << false;
    QTest::newRow("0.875 off across") << flat << QPointF(15, 20.875) << 1.0 << true;
    QTest::newRow("off the end and across: a square zone") << flat << QPointF(30.875, 20.875) << 1.0 << true;
    QTest::newRow("negative tolerance") << flat << QPointF(15, 20) << -1.0 << false;

    const QLineF upright(20, 30, 20, 10);
    QTest::newRow("upright: 1.0 off the start") << upright << QPointF(20, 31) << 1.0 << true;
    QTest::newRow("upright: more than 1.0 off the start") << upright << QPointF(20, 31.125) << 1.0 << false;
    QTest::newRow("upright: 1.0 off the end") << upright << QPointF(20, 9) << 1.0 << true;
    QTest::newRow("upright: more than 1.0 off the end") << upright << QPointF(20, 8.875) << 1.0 << false;
    QTest::newRow("upright: 1.0 off across") << upright << QPointF(21, 15) << 1.0 << false;
    QTest::newRow("upright: 0.875 off across") << upright << QPointF(20.875, 15) << 1.0 << true;

    const QLineF shallow(0, 0, 16, 2);
    QTest::newRow("slanted: on it") << shallow << QPointF(8, 1) << 0.1 << true;
    QTest::newRow("shallow: x off by more, y by less") << shallow << QPointF(20, 2.5) << 1.0 << false;
    QTest::newRow("shallow: x before by more, y by less") << shallow << QPointF(-4, -0.5) << 1.0 << false;
    QTest::newRow("shallow: x and y off by less") << shallow << QPointF(16.5, 2.0625) << 1.0 << true;
    const QLineF steep(0, 0, 2, 16);
    QTest::newRow("steep: y off by more, x by less") << steep << QPointF(2.5, 20) << 1.0 << false;
    QTest::newRow("steep: y before by more, x by less") << steep << QPointF(-0.5, -4) << 1.0 << false;
    QTest::newRow("steep: x and y off by less") << steep << QPointF(2.0625, 16.5) << 1.0 << true;
    const QLineF diagonal(0, 0, 8, 8);
    QTest::newRow("diagonal: distance just below") << diagonal << QPointF(5, 3) << 1.4143 << true;
    QTest::newRow("diagonal: distance just above") << diagonal << QPointF(5, 3) << 1.4142 << false;

    const QLineF noLength(3, 4, 3, 4);
    QTest::newRow("no length: beside it") << noLength << QPointF(3.5, 4) << 1.0 << true;
    QTest::newRow("no length: 1.0 beside it") << noLength << QPointF(4, 4) << 1.0 << true;
    QTest::newRow("no length: farther beside it") << noLength << QPointF(4.125, 4) << 1.0 << false;
    QTest::newRow("no length: 1.0 below it") << noLength << QPointF(3, 5) << 1.0 << false;
    QTest::newRow("no length: nearer below it") << noLength << QPointF(3, 4.875) << 1.0 << true;
}

void tst_GeometryHelpers::pointBelongsLine_within()
{
    QFETCH(QLineF, line);
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);
    QFETCH(bool, belongs);

    QCOMPARE(auxIsPointBelongsLine(line, p, tolerance), belongs);
    QCOMPARE(auxIsPointBelongsLine(QLineF(line.p2(), line.p1()), p, tolerance), belongs);
}

void tst_GeometryHelpers::pointBelongsLine_toleranceZero_isFalseForAnyPoint()
{
    const QList<QLineF> lines{{1, 2, 5, 2}, {1, 2, 1, 6}, {1, 2, 5, 6}, {1, 2, 5, -2}, {1, 2, 1, 2}};
    for (const QLineF &line : lines) {
        for (const double at : {0.0, 0.25, 0.5, 1.0, 2.0}) {
            QVERIFY(!auxIsPointBelongsLine(line, line.pointAt(at), 0));
            QVERIFY(!auxIsPointBelongsLine(line, line.pointAt(at) + QPointF(3, 1), 0));
        }
        QVERIFY(auxIsPointBelongsLine(line, line.p1(), 1e-9)); // what the smallest tolerance changes
    }
}

void tst_GeometryHelpers::intersectedPoint_isOnTheFirstEdge_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QPointF>("crossing");

    const QPointF none;
    QTest::newRow("left") << QLineF(0, 30, 20, 30) << QPointF(10, 30);
    QTest::newRow("top") << QLineF(30, 10, 30, 30) << QPointF(30, 20);
    QTest::newRow("bottom") << QLineF(30, 40, 30, 60) << QPointF(30, 50);
    QTest::newRow("right") << QLineF(40, 30, 60, 30) << QPointF(50, 30);
    QTest::newRow("left before top") << QLineF(40, 0, 0, 40) << QPointF(10, 30);
    QTest::newRow("left before bottom") << QLineF(30, 60, 0, 30) << QPointF(10, 40);
    QTest::newRow("left before right") << QLineF(60, 30, 0, 30) << QPointF(10, 30);
    QTest::newRow("top before bottom") << QLineF(30, 60, 30, 10) << QPointF(30, 20);
    QTest::newRow("top before right") << QLineF(60, 40, 30, 10) << QPointF(40, 20);
    QTest::newRow("bottom before right") << QLineF(60, 30, 30, 60) << QPointF(40, 50);
    QTest::newRow("ends on the edge") << QLineF(0, 30, 10, 30) << QPointF(10, 30);
    QTest::newRow("ends before the edge") << QLineF(0, 30, 9, 30) << none;
    QTest::newRow("lies inside") << QLineF(20, 30, 40, 40) << none;
    QTest::newRow("passes by") << QLineF(0, 10, 60, 10) << none;
    QTest::newRow("along the left edge: crosses the top one") << QLineF(10, 0, 10, 60) << QPointF(10, 20);
    QTest::newRow("a part of the left edge") << QLineF(10, 25, 10, 45) << none;
    QTest::newRow("no length") << QLineF(10, 30, 10, 30) << none;
}

void tst_GeometryHelpers::intersectedPoint_isOnTheFirstEdge()
{
    QFETCH(QLineF, line);

    QTEST(auxGetIntersectedPoint(QRectF(10, 20, 40, 30), line), "crossing");
}

void tst_GeometryHelpers::intersectedPoint_leavesTheLine()
{
    static_assert(std::is_same_v<decltype(auxGetIntersectedPoint), QPointF(const QRectF &, QLineF &)>);
    const QLineF before(60.25, 31, -7, 30.5);
    QLineF line = before;

    QVERIFY(auxGetIntersectedPoint(QRectF(10, 20, 40, 30), line) != QPointF());
    QCOMPARE(exact(line), exact(before));
    QCOMPARE(exact(auxGetIntersectedPoint(QRectF(100, 20, 40, 30), line)), exact(QPointF()));
    QCOMPARE(exact(line), exact(before));
}

void tst_GeometryHelpers::containsPoint_inPolygon_data()
{
    QTest::addColumn<QPolygonF>("polygon");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<bool>("contains");

    const QPolygonF bow({{0, 0}, {10, 10}, {10, 0}, {0, 10}});
    QTest::newRow("crossed: left part") << bow << QPointF(2, 5) << 0.0 << true;
    QTest::newRow("crossed: right part") << bow << QPointF(8, 5) << 0.0 << true;
    QTest::newRow("crossed: above") << bow << QPointF(5, 2) << 0.0 << false;
    QTest::newRow("crossed: above, on an edge by tolerance") << bow << QPointF(5, 4.5) << 0.5 << true;
    QTest::newRow("wound twice: odd and even") << QPolygonF(square + square) << QPointF(15, 15) << 1.0 << false;

    const QPolygonF notched({{0, 0}, {30, 0}, {30, 30}, {15, 10}, {0, 30}});
    QTest::newRow("notched: in the notch") << notched << QPointF(15, 20) << 1.0 << false;
    QTest::newRow("notched: beside it") << notched << QPointF(5, 20) << 0.0 << true;
    QTest::newRow("closing line") << notched << QPointF(-0.5, 15) << 1.0 << true;

    const QPolygonF closed({{10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}});
    QTest::newRow("last point repeats the first: inside") << closed << QPointF(15, 15) << 0.0 << true;
    QTest::newRow("last point repeats the first: outside") << closed << QPointF(25, 10.5) << 1.0 << false;
    QTest::newRow("last point repeats the first: left") << closed << QPointF(9.5, 15) << 1.0 << true;

    const QPolygonF onePoint(QList<QPointF>{{10, 10}});
    QTest::newRow("one point: itself") << onePoint << QPointF(10, 10) << 0.5 << true;
    QTest::newRow("one point: itself, tolerance 0") << onePoint << QPointF(10, 10) << 0.0 << false;
    QTest::newRow("one point: 1.0 beside it") << onePoint << QPointF(11, 10) << 1.0 << true;
    QTest::newRow("one point: 1.0 below it") << onePoint << QPointF(10, 11) << 1.0 << false;
    QTest::newRow("one point: far") << onePoint << QPointF(13, 13) << 1.0 << false;
    const QPolygonF twoPoints(QList<QPointF>{{10, 10}, {20, 20}});
    QTest::newRow("two points: between") << twoPoints << QPointF(15, 15) << 0.5 << true;
    QTest::newRow("two points: beside") << twoPoints << QPointF(15, 17) << 0.5 << false;
    QTest::newRow("no point") << QPolygonF() << QPointF(0, 0) << 5.0 << false;
}

void tst_GeometryHelpers::containsPoint_inPolygon()
{
    QFETCH(QPolygonF, polygon);
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);

    QTEST(auxContainsPointIncludingBorders(polygon, p, tolerance), "contains");
}

void tst_GeometryHelpers::containsPoint_inRectangleAndItsPolygon_areTheSame_data()
{
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<bool>("contains");

    QTest::newRow("inside, tolerance 0") << QPointF(15, 15) << 0.0 << true;
    QTest::newRow("far outside") << QPointF(15, 35) << 1.0 << false;
    QTest::newRow("0.5 left of it") << QPointF(9.5, 15) << 1.0 << true;
    QTest::newRow("0.5 above it") << QPointF(15, 9.5) << 1.0 << true;
    QTest::newRow("0.5 right of it") << QPointF(20.5, 15) << 1.0 << true;
    QTest::newRow("0.5 below it") << QPointF(15, 20.5) << 1.0 << true;
    QTest::newRow("1.0 left of it: strictly smaller") << QPointF(9, 15) << 1.0 << false;
    QTest::newRow("1.0 above it: strictly smaller") << QPointF(15, 9) << 1.0 << false;
    QTest::newRow("1.0 right of it: strictly smaller") << QPointF(21, 15) << 1.0 << false;
    QTest::newRow("1.0 below it: strictly smaller") << QPointF(15, 21) << 1.0 << false;
    QTest::newRow("0.5 left of it, tolerance 0") << QPointF(9.5, 15) << 0.0 << false;
    QTest::newRow("corner zones are square") << QPointF(9.125, 9.125) << 1.0 << true;
    QTest::newRow("beyond a corner by the tolerance") << QPointF(9.5, 9) << 1.0 << true;
    QTest::newRow("beyond a corner by more") << QPointF(9.5, 8.875) << 1.0 << false;
    QTest::newRow("beyond a corner both ways by the tolerance") << QPointF(9, 9) << 1.0 << false;
    QTest::newRow("right border") << QPointF(20, 15) << 0.1 << true;
    QTest::newRow("lower border") << QPointF(15, 20) << 0.1 << true;
    QTest::newRow("last corner") << QPointF(20, 20) << 0.1 << true;
}

void tst_GeometryHelpers::containsPoint_inRectangleAndItsPolygon_areTheSame()
{
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);
    QFETCH(bool, contains);

    QCOMPARE(auxContainsPointIncludingBorders(squareRect, p, tolerance), contains);
    QCOMPARE(auxContainsPointIncludingBorders(square, p, tolerance), contains);
    QCOMPARE(auxContainsPointsIncludingBorders(squareRect, {p}, tolerance), contains);
}

void tst_GeometryHelpers::containsPoint_toleranceZero_isWhatThePolygonSays()
{
    int inside = 0;
    for (const double x : {9.0, 10.0, 15.0, 20.0, 21.0}) {
        for (const double y : {9.0, 10.0, 15.0, 20.0, 21.0}) {
            const bool contains = square.containsPoint(QPointF(x, y), Qt::OddEvenFill);
            QCOMPARE(auxContainsPointIncludingBorders(square, QPointF(x, y), 0), contains);
            QCOMPARE(auxContainsPointIncludingBorders(squareRect, QPointF(x, y), 0), contains);
            inside += contains ? 1 : 0;
        }
    }
    QVERIFY(inside > 1 && inside < 9); // the polygon has some of its borders, not all
}

void tst_GeometryHelpers::containsPoint_inFlatRectangle_isOnItsBorder()
{
    const QRectF noWidth(10, 10, 0, 10);
    QVERIFY(auxContainsPointIncludingBorders(noWidth, QPointF(10.5, 15), 1));
    QVERIFY(!auxContainsPointIncludingBorders(noWidth, QPointF(11, 15), 1));
    QVERIFY(!auxContainsPointIncludingBorders(noWidth, QPointF(10, 15), 0));

    const QRectF backward(20, 20, -10, -10);
    QVERIFY(auxContainsPointIncludingBorders(backward, QPointF(15, 15), 0));
    QVERIFY(!auxContainsPointIncludingBorders(backward, QPointF(25, 15), 1));
}

void tst_GeometryHelpers::containsPoints_needsThemAll_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QList<QPointF>>("points");
    QTest::addColumn<bool>("contains");

    const QPointF in(15, 15);
    const QPointF onBorder(20.5, 20);
    const QPointF out(21, 15);
    QTest::newRow("empty list") << squareRect << QList<QPointF>() << true;
    QTest::newRow("empty list, empty rectangle") << QRectF() << QList<QPointF>() << true;
    QTest::newRow("all inside or on the border") << squareRect << QList<QPointF>{in, onBorder, in} << true;
    QTest::newRow("first outside") << squareRect << QList<QPointF>{out, in, in} << false;
    QTest::newRow("middle outside") << squareRect << QList<QPointF>{in, out, in} << false;
    QTest::newRow("last outside") << squareRect << QList<QPointF>{in, onBorder, out} << false;
    QTest::newRow("all outside") << squareRect << QList<QPointF>{out, out} << false;
}

void tst_GeometryHelpers::containsPoints_needsThemAll()
{
    QFETCH(QRectF, rect);
    QFETCH(QList<QPointF>, points);

    QTEST(auxContainsPointsIncludingBorders(rect, points, 1), "contains");
}

QTEST_GUILESS_MAIN(tst_GeometryHelpers)
#include "tst_GeometryHelpers.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exact.h"

#include "utilsDll/geometry/GeometryHelpers.h"

#include <QtTest/QTest>

#include <cmath>

using namespace ZYX_zglv6;

class tst_GeometryOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nearestFoot_onLines_data();
    void nearestFoot_onLines();
    void nearestFoot_behindAnotherLine_data();
    void nearestFoot_behindAnotherLine();
    void nearestFoot_onRectangle_data();
    void nearestFoot_onRectangle();
    void nearestFoot_onRectangleWithoutArea_isNone_data();
    void nearestFoot_onRectangleWithoutArea_isNone();
    void nearestFoot_onPolygon_data();
    void nearestFoot_onPolygon();
    void imageCorner_ofRectangle_data();
    void imageCorner_ofRectangle();
    void imageCorner_ofPolygon_data();
    void imageCorner_ofPolygon();
    void imageCorner_footAtTheOrigin_countsAsNone();
    void parallelLine_acrossTheOutline_data();
    void parallelLine_acrossTheOutline();
    void parallelLine_almostFlatOrUpright_isTakenAsItIs();
    void parallelLine_endsOnValuesThatRound_data();
    void parallelLine_endsOnValuesThatRound();
    void parallelLine_withFewerThanTwoCrossings_isNull_data();
    void parallelLine_withFewerThanTwoCrossings_isNull();
};

void tst_GeometryOutline::nearestFoot_onLines_data()
{
    QTest::addColumn<QList<QLineF>>("lines");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<QPointF>("foot");

    const QPointF none;
    const QLineF flat(10, 20, 30, 20);
    const QLineF backward(30, 20, 10, 20);
    const QLineF upright(20, 30, 20, 10);
    const QLineF slanted(10, 10, 18, 18);
    using Lines = QList<QLineF>;
    QTest::newRow("empty list") << Lines() << QPointF(4, 5) << 1.0 << none;
    QTest::newRow("one line") << Lines{flat} << QPointF(14, 5) << 1.0 << QPointF(14, 20);
    QTest::newRow("at its start") << Lines{flat} << QPointF(10, 5) << 1.0 << QPointF(10, 20);
    QTest::newRow("at its end") << Lines{flat} << QPointF(30, 5) << 1.0 << QPointF(30, 20);
    QTest::newRow("backward, at its start") << Lines{backward} << QPointF(30, 5) << 1.0 << QPointF(30, 20);
    QTest::newRow("backward, at its end") << Lines{backward} << QPointF(10, 5) << 1.0 << QPointF(10, 20);
    QTest::newRow("beyond its start by less than the tolerance") << Lines{flat} << QPointF(9.5, 5) << 1.0 << none;
    QTest::newRow("beyond its end by less than the tolerance") << Lines{flat} << QPointF(30.5, 5) << 1.0 << none;
    QTest::newRow("backward, beyond by less") << Lines{backward} << QPointF(30.5, 5) << 1.0 << none;
    QTest::newRow("upright") << Lines{upright} << QPointF(5, 14) << 1.0 << QPointF(20, 14);
    QTest::newRow("upright, beyond its start by less") << Lines{upright} << QPointF(5, 30.5) << 1.0 << none;
    QTest::newRow("upright, beyond its end by less") << Lines{upright} << QPointF(5, 9.5) << 1.0 << none;
    QTest::newRow("slanted") << Lines{slanted} << QPointF(20, 10) << 1.0 << QPointF(15, 15);
    QTest::newRow("slanted, beyond its end by less") << Lines{slanted} << QPointF(21, 16) << 1.0 << none;

    QTest::newRow("nearest is the last") << Lines{{0, 2, 9, 2}, {0, 15, 9, 15}} << QPointF(5, 10) << 1.0
                                         << QPointF(5, 15);
    QTest::newRow("nearest is the first")
        << Lines{{0, 15, 9, 15}, {0, 2, 9, 2}} << QPointF(5, 10) << 1.0 << QPointF(5, 15);
    QTest::newRow("equal: first") << Lines{{0, 5, 9, 5}, {0, 15, 9, 15}} << QPointF(5, 10) << 1.0 << QPointF(5, 5);
    QTest::newRow("equal: first of the turned list")
        << Lines{{0, 15, 9, 15}, {0, 5, 9, 5}} << QPointF(5, 10) << 1.0 << QPointF(5, 15);
    QTest::newRow("equal after a farther one")
        << Lines{{0, 1, 9, 1}, {0, 15, 9, 15}, {10, 0, 10, 20}} << QPointF(5, 10) << 1.0 << QPointF(5, 15);

    QTest::newRow("on two lines: first, not nearest")
        << Lines{{0, 20.75, 9, 20.75}, {0, 20.25, 9, 20.25}} << QPointF(5, 20) << 1.0 << QPointF(5, 20.75);
    QTest::newRow("on a line's lengthening: the foot there")
        << Lines{flat} << QPointF(30.5, 20.5) << 1.0 << QPointF(30.5, 20);
    QTest::newRow("on a later line's lengthening: before all feet")
        << Lines{{0, 18, 40, 18}, flat} << QPointF(30.5, 20.5) << 1.0 << QPointF(30.5, 20);
    QTest::newRow("on the line, tolerance 0: no way to cross it") << Lines{flat} << QPointF(15, 20) << 0.0 << none;
    QTest::newRow("no length: never crossed") << Lines{{13, 14, 13, 14}} << QPointF(13, 19) << 1.0 << none;
}

void tst_GeometryOutline::nearestFoot_onLines()
{
    QFETCH(QList<QLineF>, lines);
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);
    QFETCH(QPointF, foot);

    QCOMPARE(exact(auxGetPerpendicularToNearestLine(lines, p, tolerance)), exact(foot));
}

void tst_GeometryOutline::nearestFoot_behindAnotherLine_data()
{
    QTest::addColumn<QList<QLineF>>("others");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<QPointF>("foot");

    // None of the others, but the same line once more, has a foot of its own within its extent.
    const QPointF none;
    const QPointF found(15, 20);
    const QLineF across(14, 18, 16, 20); // crosses the way at (15, 19)
    using Lines = QList<QLineF>;
    QTest::newRow("alone") << Lines() << 1.0 << found;
    QTest::newRow("behind one") << Lines{{14, 13, 16, 15}} << 1.0 << none;
    QTest::newRow("behind two") << Lines{{14, 13, 16, 15}, {14, 14, 16, 16}} << 1.0 << none;
    QTest::newRow("behind the last of three")
        << Lines{{24, 13, 26, 15}, {4, 13, 2, 15}, {14, 13, 16, 15}} << 1.0 << none;
    QTest::newRow("beside one") << Lines{{24, 13, 26, 15}} << 1.0 << found;
    QTest::newRow("before one") << Lines{{14, 24, 16, 26}} << 1.0 << found;
    QTest::newRow("one on the other side of p") << Lines{{14, 3, 16, 1}} << 1.0 << found;
    QTest::newRow("one ends on the way") << Lines{{15, 15, 17, 17}} << 1.0 << none;
    QTest::newRow("crossed at the tolerance: strictly smaller") << Lines{across} << 1.0 << none;
    QTest::newRow("crossed within the tolerance: not obstructed") << Lines{across} << 1.25 << found;
    QTest::newRow("crossed within, and farther off too") << Lines{across, {14, 13, 16, 15}} << 1.25 << none;
    QTest::newRow("crossed at the foot") << Lines{{15, 20, 17, 22}} << 1.0 << found;
    QTest::newRow("crossed at the foot, tolerance 0") << Lines{{15, 20, 17, 22}} << 0.0 << none;
    QTest::newRow("the same line again") << Lines{{10, 20, 30, 20}} << 1.0 << found;
    QTest::newRow("the same line again, tolerance 0") << Lines{{10, 20, 30, 20}} << 0.0 << none;
    QTest::newRow("one along the way: parallel to it") << Lines{{15, 12, 15, 10}} << 1.0 << found;
}

void tst_GeometryOutline::nearestFoot_behindAnotherLine()
{
    const QPointF p(15, 5);
    const QLineF line(10, 20, 30, 20);
    QFETCH(QList<QLineF>, others);
    QFETCH(double, tolerance);
    QFETCH(QPointF, foot);

    QCOMPARE(exact(auxGetPerpendicularToNearestLine(QList<QLineF>{line} + others, p, tolerance)), exact(foot));
    QCOMPARE(exact(auxGetPerpendicularToNearestLine(others + QList<QLineF>{line}, p, tolerance)), exact(foot));
    QCOMPARE(exact(auxGetPerpendicularToNearestLine(others, p, tolerance)),
             exact(others.contains(line) ? QPointF(15, 20) : QPointF()));
}

void tst_GeometryOutline::nearestFoot_onRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<QPointF>("foot");

    const QPointF none;
    const QRectF square(10, 10, 10, 10);
    QTest::newRow("centre of the unit square: bottom")
        << QRectF(0, 0, 1, 1) << QPointF(0.5, 0.5) << 0.1 << QPointF(0.5, 1);
    QTest::newRow("bottom before left") << square << QPointF(12, 18) << 1.0 << QPointF(12, 20);
    QTest::newRow("bottom before top") << QRectF(10, 10, 10, 4) << QPointF(15, 12) << 1.0 << QPointF(15, 14);
    QTest::newRow("bottom before right") << square << QPointF(18, 18) << 1.0 << QPointF(18, 20);
    QTest::newRow("left before top") << square << QPointF(12, 12) << 1.0 << QPointF(10, 12);
    QTest::newRow("left before right") << QRectF(10, 10, 4, 10) << QPointF(12, 15) << 1.0 << QPointF(10, 15);
    QTest::newRow("top before right") << square << QPointF(18, 12) << 1.0 << QPointF(18, 10);
    QTest::newRow("on bottom and left") << square << QPointF(11, 19) << 3.0 << QPointF(11, 20);
    QTest::newRow("on bottom and top") << QRectF(10, 10, 10, 4) << QPointF(15, 11) << 4.0 << QPointF(15, 14);
    QTest::newRow("on bottom and right") << square << QPointF(19, 19) << 3.0 << QPointF(19, 20);
    QTest::newRow("on left and top") << square << QPointF(11, 11) << 3.0 << QPointF(10, 11);
    QTest::newRow("on left and right") << QRectF(10, 10, 4, 10) << QPointF(13, 15) << 4.0 << QPointF(10, 15);
    QTest::newRow("on top and right") << square << QPointF(19, 11) << 3.0 << QPointF(19, 10);

    QTest::newRow("nearest is left") << square << QPointF(11, 14) << 0.5 << QPointF(10, 14);
    QTest::newRow("nearest is top") << square << QPointF(14, 11) << 0.5 << QPointF(14, 10);
    QTest::newRow("nearest is right") << square << QPointF(19, 14) << 0.5 << QPointF(20, 14);
    QTest::newRow("nearest is bottom") << square << QPointF(14, 19) << 0.5 << QPointF(14, 20);
    QTest::newRow("outside to the left") << square << QPointF(3, 14) << 0.5 << QPointF(10, 14);
    QTest::newRow("outside above") << square << QPointF(14, 3) << 0.5 << QPointF(14, 10);
    QTest::newRow("outside to the right") << square << QPointF(33, 14) << 0.5 << QPointF(20, 14);
    QTest::newRow("outside below") << square << QPointF(14, 33) << 0.5 << QPointF(14, 20);
    QTest::newRow("off the top left corner") << square << QPointF(3, 3) << 0.5 << none;
    QTest::newRow("off the top right corner") << square << QPointF(33, 3) << 0.5 << none;
    QTest::newRow("off the bottom left corner") << square << QPointF(3, 33) << 0.5 << none;
    QTest::newRow("off the bottom right corner") << square << QPointF(33, 33) << 0.5 << none;
    QTest::newRow("on the bottom, tolerance 0: beside it") << square << QPointF(15, 20) << 0.0 << QPointF(10, 20);
    QTest::newRow("hardly any width") << QRectF(10, 10, 1e-9, 10) << QPointF(5, 15) << 1.0 << QPointF(10, 15);
    QTest::newRow("hardly any height") << QRectF(10, 10, 10, 1e-9) << QPointF(15, 5) << 1.0 << QPointF(15, 10);
}

void tst_GeometryOutline::nearestFoot_onRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);
    QFETCH(QPointF, foot);

    QCOMPARE(exact(auxGetPerpendicularToNearestLine(rect, p, tolerance)), exact(foot));
}

void tst_GeometryOutline::nearestFoot_onRectangleWithoutArea_isNone_data()
{
    QTest::addColumn<QRectF>("rect");

    QTest::newRow("width 0") << QRectF(10, 10, 0, 10);
    QTest::newRow("height 0") << QRectF(10, 10, 10, 0);
    QTest::newRow("both 0") << QRectF(10, 10, 0, 0);
    QTest::newRow("negative width") << QRectF(20, 10, -10, 10);
    QTest::newRow("negative height") << QRectF(10, 20, 10, -10);
    QTest::newRow("both negative") << QRectF(20, 20, -10, -10);
    QTest::newRow("null") << QRectF();
}

void tst_GeometryOutline::nearestFoot_onRectangleWithoutArea_isNone()
{
    QFETCH(QRectF, rect);

    for (const QPointF &p : {rect.topLeft(), rect.center(), QPointF(15, 15), QPointF(5, 15), QPointF(15, 5)}) {
        QCOMPARE(exact(auxGetPerpendicularToNearestLine(rect, p, 1)), exact(QPointF()));
    }
}

void tst_GeometryOutline::nearestFoot_onPolygon_data()
{
    QTest::addColumn<QPolygonF>("polygon");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<QPointF>("foot");

    const QPointF none;
    const QPolygonF fromLeft({{10, 20}, {10, 10}, {20, 10}, {20, 20}});
    const QPolygonF fromTop({{10, 10}, {20, 10}, {20, 20}, {10, 20}});
    QTest::newRow("no point") << QPolygonF() << QPointF(5, 5) << none;
    QTest::newRow("one point: far") << QPolygonF(QList<QPointF>{{10, 10}}) << QPointF(10, 5) << none;
    QTest::newRow("one point: near") << QPolygonF(QList<QPointF>{{10, 10}}) << QPointF(10.5, 10.25)
                                     << QPointF(10.5, 10);
    QTest::newRow("two points") << QPolygonF(QList<QPointF>{{10, 10}, {18, 18}}) << QPointF(18, 10) << QPointF(14, 14);
    QTest::newRow("equal: first edge") << fromLeft << QPointF(15, 15) << QPointF(10, 15);
    QTest::newRow("equal: first edge of another start") << fromTop << QPointF(15, 15) << QPointF(15, 10);
    QTest::newRow("equal: closing line is the last") << fromTop << QPointF(12, 18) << QPointF(12, 20);
    QTest::newRow("on two edges: closing line is the last") << fromTop << QPointF(10.5, 10.5) << QPointF(10.5, 10);
    QTest::newRow("nearest to the closing line") << fromTop << QPointF(12, 15) << QPointF(10, 15);
    QTest::newRow("only the closing line") << fromLeft << QPointF(15, 33) << QPointF(15, 20);

    // An almost flat edge gives its end's y, an almost upright one its end's x: that shows its direction.
    QTest::newRow("from the earlier to the later: flat")
        << QPolygonF({{0, 0}, {10, 5e-8}, {5, 10}}) << QPointF(4, -3) << QPointF(4, 5e-8);
    QTest::newRow("from the earlier to the later: upright")
        << QPolygonF({{0, 0}, {5e-8, 10}, {10, 5}}) << QPointF(-3, 4) << QPointF(5e-8, 4);
    QTest::newRow("closing from the first to the last: flat")
        << QPolygonF({{0, 0}, {5, 10}, {10, 5e-8}}) << QPointF(4, -3) << QPointF(4, 5e-8);
    QTest::newRow("closing from the first to the last: upright")
        << QPolygonF({{0, 0}, {10, 5}, {5e-8, 10}}) << QPointF(-3, 4) << QPointF(5e-8, 4);
    QTest::newRow("last point repeats the first: a line without length")
        << QPolygonF({{10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}}) << QPointF(12, 15) << QPointF(10, 15);
}

void tst_GeometryOutline::nearestFoot_onPolygon()
{
    QFETCH(QPolygonF, polygon);
    QFETCH(QPointF, p);
    QFETCH(QPointF, foot);

    QCOMPARE(exact(auxGetPerpendicularToNearestLine(polygon, p, 1)), exact(foot));
}

void tst_GeometryOutline::imageCorner_ofRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<QPointF>("corner");

    const QRectF square(10, 10, 10, 10);
    QTest::newRow("off the top left corner") << square << QPointF(3, 3) << 1.0 << QPointF(10, 10);
    QTest::newRow("off the top right corner") << square << QPointF(33, 3) << 1.0 << QPointF(20, 10);
    QTest::newRow("off the bottom left corner") << square << QPointF(3, 33) << 1.0 << QPointF(10, 20);
    QTest::newRow("off the bottom right corner") << square << QPointF(33, 33) << 1.0 << QPointF(20, 20);
    QTest::newRow("beside it: the foot") << square << QPointF(3, 14) << 1.0 << QPointF(10, 14);
    QTest::newRow("on its border: the projection") << square << QPointF(15, 20.5) << 1.0 << QPointF(15, 20);
    QTest::newRow("centre: left is the first edge") << square << QPointF(15, 15) << 1.0 << QPointF(10, 15);
    QTest::newRow("left before bottom") << square << QPointF(12, 18) << 1.0 << QPointF(10, 18);
    QTest::newRow("top before right") << square << QPointF(18, 12) << 1.0 << QPointF(18, 10);
    QTest::newRow("top before bottom") << QRectF(10, 10, 10, 4) << QPointF(15, 12) << 1.0 << QPointF(15, 10);
    QTest::newRow("right before bottom") << square << QPointF(18, 18) << 1.0 << QPointF(20, 18);
    QTest::newRow("no width: still a foot") << QRectF(10, 20, 0, 30) << QPointF(15, 35) << 1.0 << QPointF(10, 35);
    // Without a tolerance the two sides of a flat rectangle obstruct each other.
    QTest::newRow("bottom left before top left") << QRectF(10, 20, 0, 30) << QPointF(15, 35) << 0.0 << QPointF(10, 50);
    QTest::newRow("left corners before right ones")
        << QRectF(10, 20, 30, 0) << QPointF(25, 25) << 0.0 << QPointF(10, 20);
    QTest::newRow("null rectangle") << QRectF() << QPointF(3, 4) << 1.0 << QPointF(0, 0);
}

void tst_GeometryOutline::imageCorner_ofRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(QPointF, p);
    QFETCH(double, tolerance);
    QFETCH(QPointF, corner);

    const QPolygonF polygon({rect.bottomLeft(), rect.topLeft(), rect.topRight(), rect.bottomRight()});
    QCOMPARE(exact(auxGetPointForImageCorner(rect, p, tolerance)), exact(corner));
    QCOMPARE(exact(auxGetPointForImageCorner(polygon, p, tolerance)), exact(corner));
}

void tst_GeometryOutline::imageCorner_ofPolygon_data()
{
    QTest::addColumn<QPolygonF>("polygon");
    QTest::addColumn<QPointF>("p");
    QTest::addColumn<QPointF>("corner");

    const QPolygonF diamond({{20, 10}, {30, 20}, {20, 30}, {10, 20}});
    QTest::newRow("no point") << QPolygonF() << QPointF(5, 5) << QPointF(0, 0);
    QTest::newRow("one point") << QPolygonF(QList<QPointF>{{10, 10}}) << QPointF(10, 5) << QPointF(10, 10);
    QTest::newRow("first point") << diamond << QPointF(20, 1) << QPointF(20, 10);
    QTest::newRow("second point") << diamond << QPointF(41, 20) << QPointF(30, 20);
    QTest::newRow("last point") << diamond << QPointF(1, 20) << QPointF(10, 20);
    QTest::newRow("there is a foot") << diamond << QPointF(30, 12) << QPointF(26, 16);
    const QPolygonF notched({{10, 10}, {14, 18}, {18, 10}, {18, 42}, {10, 42}});
    QTest::newRow("a farther foot before a near corner") << notched << QPointF(14, 20) << QPointF(18, 20);
    const QPolygonF round({{13, 10}, {10, 13}, {13, 16}});
    QTest::newRow("beyond the last point") << round << QPointF(14, 18) << QPointF(13, 16);
}

void tst_GeometryOutline::imageCorner_ofPolygon()
{
    QFETCH(QPolygonF, polygon);
    QFETCH(QPointF, p);
    QFETCH(QPointF, corner);

    QCOMPARE(exact(auxGetPointForImageCorner(polygon, p, 1)), exact(corner));
}

void tst_GeometryOutline::imageCorner_footAtTheOrigin_countsAsNone()
{
    const QPolygonF fromLeft({{-5, 0}, {5, 0}, {5, 10}, {-5, 10}});
    const QPolygonF fromRight({{5, 0}, {-5, 0}, {-5, 10}, {5, 10}});

    QCOMPARE(exact(auxGetPerpendicularToNearestLine(fromLeft, QPointF(0, -3), 1)), exact(QPointF(0, 0)));
    QCOMPARE(exact(auxGetPointForImageCorner(fromLeft, QPointF(0, -3), 1)), exact(QPointF(-5, 0))); // of two the first
    QCOMPARE(exact(auxGetPointForImageCorner(fromRight, QPointF(0, -3), 1)), exact(QPointF(5, 0)));
    QCOMPARE(exact(auxGetPointForImageCorner(fromLeft, QPointF(1e-13, -3), 1)), exact(QPointF(1e-13, 0)));
    QCOMPARE(exact(auxGetPointForImageCorner(fromLeft.translated(5, 0), QPointF(-1, 1e-13), 0.5)),
             exact(QPointF(0, 1e-13)));
    QCOMPARE(exact(auxGetPointForImageCorner(fromLeft, QPointF(2, -3), 1)), exact(QPointF(2, 0)));
    QCOMPARE(exact(auxGetPointForImageCorner(fromLeft, QPointF(0, 9), 2)), exact(QPointF(0, 10)));
}

void tst_GeometryOutline::parallelLine_acrossTheOutline_data()
{
    QTest::addColumn<QList<QPointF>>("points");
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QLineF>("parallel");

    using Points = QList<QPointF>;
    const Points square{{0, 0}, {8, 0}, {8, 8}, {0, 8}};
    const Points turned{{8, 8}, {0, 8}, {0, 0}, {8, 0}};
    const QLineF flat(100, 3, 90, 3);
    const QLineF upright(3, 90, 3, 100);
    QTest::newRow("flat") << square << flat << QLineF(8, 4, 0, 4);
    QTest::newRow("flat, other start") << turned << flat << QLineF(0, 4, 8, 4);
    QTest::newRow("upright") << square << upright << QLineF(4, 0, 4, 8);
    QTest::newRow("upright, other start") << turned << upright << QLineF(4, 8, 4, 0);
    QTest::newRow("rising") << square << QLineF(50, 60, 54, 62) << QLineF(8, 6, 0, 2);
    QTest::newRow("rising, backward") << square << QLineF(54, 62, 50, 60) << QLineF(8, 6, 0, 2);
    QTest::newRow("falling") << square << QLineF(0, 2, 4, 0) << QLineF(8, 2, 0, 6);
    QTest::newRow("steep") << square << QLineF(0, 0, 2, 4) << QLineF(2, 0, 6, 8);
    QTest::newRow("no length: as if flat") << square << QLineF(3, 3, 3, 3) << QLineF(8, 4, 0, 4);
    QTest::newRow("from corner to corner") << square << QLineF(0, 0, 1, 1) << QLineF(0, 0, 8, 8);
    QTest::newRow("a corner is on two edges: both crossings there")
        << square << QLineF(0, 1, 1, 0) << QLineF(8, 0, 8, 0);

    const Points triangle{{0, 0}, {8, 0}, {0, 4}};
    QTest::newRow("centre of the bounding box: flat") << triangle << flat << QLineF(4, 2, 0, 2);
    QTest::newRow("centre of the bounding box: upright") << triangle << upright << QLineF(4, 0, 4, 2);
    QTest::newRow("centre of the bounding box: rising") << triangle << QLineF(0, 0, 4, 1) << QLineF(4, 2, 0, 1);
    const Points shifted{{-3, 5}, {5, 5}, {5, 13}, {-3, 13}};
    QTest::newRow("away from the origin") << shifted << QLineF(50, 60, 54, 62) << QLineF(5, 11, -3, 7);

    const Points comb{{0, 0}, {2, 16}, {4, 0}, {6, 16}, {8, 0}};
    QTest::newRow("four crossings: the first two") << comb << flat << QLineF(1, 8, 3, 8);
}

void tst_GeometryOutline::parallelLine_acrossTheOutline()
{
    QFETCH(QList<QPointF>, points);
    QFETCH(QLineF, line);
    QFETCH(QLineF, parallel);

    const QLineF found = auxGetParallelLine(points, line);
    QCOMPARE(found.p1(), parallel.p1());
    QCOMPARE(found.p2(), parallel.p2());
}

void tst_GeometryOutline::parallelLine_almostFlatOrUpright_isTakenAsItIs()
{
    const QList<QPointF> square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};

    const QLineF flat = auxGetParallelLine(square, QLineF(0, 0, 10, 5e-8));
    QCOMPARE(exact(QPointF(flat.x1(), flat.x2())), exact(QPointF(10, 0)));
    QVERIFY2(std::abs(flat.y1() - 5.000000025) < 1e-12, qPrintable(exact(flat)));
    QVERIFY2(std::abs(flat.y2() - 4.999999975) < 1e-12, qPrintable(exact(flat)));

    const QLineF upright = auxGetParallelLine(square, QLineF(0, 0, 5e-8, 10));
    QCOMPARE(exact(QPointF(upright.y1(), upright.y2())), exact(QPointF(0, 10)));
    QVERIFY2(std::abs(upright.x1() - 4.999999975) < 1e-12, qPrintable(exact(upright)));
    QVERIFY2(std::abs(upright.x2() - 5.000000025) < 1e-12, qPrintable(exact(upright)));
}

void tst_GeometryOutline::parallelLine_endsOnValuesThatRound_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");

    // A rectangle made of a corner and a size ends short of 0.9 or beyond it.
    QTest::newRow("0.1 and 0.7") << 0.1 << 0.7;
    QTest::newRow("0.2 and 0.9: low + (high - low) is smaller") << 0.2 << 0.9;
    QTest::newRow("0.3 and 0.9: low + (high - low) is larger") << 0.3 << 0.9;
}

void tst_GeometryOutline::parallelLine_endsOnValuesThatRound()
{
    QFETCH(double, low);
    QFETCH(double, high);

    const double centre = (low + high) / 2;
    const QList<QPointF> square{{low, low}, {high, low}, {high, high}, {low, high}};
    const QLineF flat = auxGetParallelLine(square, QLineF(0, 0, 1, 0));
    QCOMPARE(exact(QPointF(flat.x1(), flat.x2())), exact(QPointF(high, low)));
    QCOMPARE(flat.y1(), centre);
    QCOMPARE(flat.y2(), centre);
    const QLineF upright = auxGetParallelLine(square, QLineF(0, 0, 0, 1));
    QCOMPARE(exact(QPointF(upright.y1(), upright.y2())), exact(QPointF(low, high)));
    QCOMPARE(upright.x1(), centre);
    QCOMPARE(upright.x2(), centre);
}

void tst_GeometryOutline::parallelLine_withFewerThanTwoCrossings_isNull_data()
{
    QTest::addColumn<QList<QPointF>>("points");
    QTest::addColumn<QLineF>("line");

    using Points = QList<QPointF>;
    QTest::newRow("no point") << Points() << QLineF(0, 0, 1, 0);
    QTest::newRow("one point") << Points{{3, 4}} << QLineF(0, 0, 1, 0);
    QTest::newRow("one point, slanted") << Points{{3, 4}} << QLineF(0, 0, 1, 2);
    QTest::newRow("all along the line, flat") << Points{{3, 4}, {9, 4}, {5, 4}} << QLineF(0, 0, 1, 0);
    QTest::newRow("all along the line, upright") << Points{{3, 4}, {3, 8}} << QLineF(0, 0, 0, 1);
    QTest::newRow("all along the line, slanted") << Points{{0, 0}, {8, 8}} << QLineF(0, 0, 1, 1);
}

void tst_GeometryOutline::parallelLine_withFewerThanTwoCrossings_isNull()
{
    QFETCH(QList<QPointF>, points);
    QFETCH(QLineF, line);

    QCOMPARE(exact(auxGetParallelLine(points, line)), exact(QLineF()));
}

QTEST_GUILESS_MAIN(tst_GeometryOutline)
#include "tst_GeometryOutline.moc"

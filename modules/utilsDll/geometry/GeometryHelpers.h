// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QLineF>
#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtGui/QPolygonF>

/*
    Keeping a point on the outline of a polygon or rectangle. All functions are pure and safe from any thread.

    The point (0, 0) stands for "none": a result there can't be told from it. A tolerance is a distance in the units of
    the points. A polygon's edges go from point to point, and one from the first to the last closes it.
*/
namespace ZYX_zglv6 {

/*! The length of the vector \a p. */
UTILSDLL_EXPORT double auxGetDistance(const QPointF &p);
UTILSDLL_EXPORT double auxGetDistance(const QPointF &a, const QPointF &b);

/*!
    The foot of the perpendicular from \a p on the infinite line through \a line. One that is flat or upright to 1e-7
    counts as exactly so, at the height or place of its second end; a line without length counts as flat.
*/
UTILSDLL_EXPORT QPointF auxGetPerpendicularCoord(const QLineF &line, const QPointF &p);

/*!
    Whether \a p is less than \a tolerance away from the infinite line through \a line, and its foot no more than that
    beyond the segment, in x and in y. With a tolerance of 0: never.
*/
UTILSDLL_EXPORT bool auxIsPointBelongsLine(const QLineF &line, const QPointF &p, double tolerance);

/*!
    The foot of \a p on the first line that it belongs to within \a tolerance; else the nearest foot that lies on its
    segment and is not behind another line, unless it lies on that one too. Of equally near ones the first; (0, 0) if
    there is none, and for a rectangle without width or height.
*/
UTILSDLL_EXPORT QPointF auxGetPerpendicularToNearestLine(const QList<QLineF> &lines, const QPointF &p,
                                                         double tolerance);
UTILSDLL_EXPORT QPointF auxGetPerpendicularToNearestLine(const QPolygonF &polygon, const QPointF &p, double tolerance);
UTILSDLL_EXPORT QPointF auxGetPerpendicularToNearestLine(const QRectF &rect, const QPointF &p, double tolerance);

/*! Where \a line, which stays as it is, crosses the first of the left, top, bottom and right edge; (0, 0) for none. */
UTILSDLL_EXPORT QPointF auxGetIntersectedPoint(const QRectF &rect, QLineF &line);

/*!
    The part of a parallel to \a line, through the centre of the bounding box of \a points, between its first and its
    second crossing with their outline; a corner is two. The outline has to have two, as each convex one with an area
    has; the line is null without.
*/
UTILSDLL_EXPORT QLineF auxGetParallelLine(const QList<QPointF> &points, const QLineF &line);

/*! auxGetPerpendicularToNearestLine(), and where there is none the nearest corner, of equally near ones the first. */
UTILSDLL_EXPORT QPointF auxGetPointForImageCorner(const QPolygonF &polygon, const QPointF &p, double tolerance);
UTILSDLL_EXPORT QPointF auxGetPointForImageCorner(const QRectF &rect, const QPointF &p, double tolerance);

/*! Whether \a p is inside, by the odd-even rule, or belongs to an edge within \a tolerance. */
UTILSDLL_EXPORT bool auxContainsPointIncludingBorders(const QPolygonF &polygon, const QPointF &p, double tolerance);
UTILSDLL_EXPORT bool auxContainsPointIncludingBorders(const QRectF &rect, const QPointF &p, double tolerance);

/*! Whether all \a points are in \a rect, each as above; true without points. */
UTILSDLL_EXPORT bool auxContainsPointsIncludingBorders(const QRectF &rect, const QList<QPointF> &points,
                                                       double tolerance);

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/geometry/GeometryHelpers.h"

using namespace ZYX_zglv6;

namespace Snippets {

//! [drag]
/*! Where the handle of a crop goes when the mouse is at \a mouse: onto the photograph's outline, to the tolerance. */
QPointF handleAt(const QPolygonF &photograph, const QPointF &mouse)
{
    constexpr double tolerance = 1;
    return auxGetPointForImageCorner(photograph, mouse, tolerance);
}
//! [drag]

} // namespace Snippets

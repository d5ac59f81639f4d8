// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/look/GuiUtils.h"
#include "utilsDll/look/ImageComparison.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

using namespace ZYX_zglv6;

namespace Snippets {

//! [preview]
/*! Paints \a photograph with its shadow, and a groove to the right of it. */
void paintPreview(QPainter &painter, const QImage &photograph, const QPoint &place)
{
    const QRect rect(place, photograph.size());
    painter.drawImage(rect, photograph);
    drawShadowRect(&painter, rect);
    const QPointF groove = rect.topRight() + QPointF(20, 0);
    drawSeparatorLine(&painter, groove, rect.height(), Qt::Vertical, Qt::black, Qt::gray);
}
//! [preview]

//! [comparison]
/*! Whether a look changes \a before by more than a hundredth of what it could. */
bool isVisiblyChanged(const QImage &before, const QImage &after)
{
    const QImage::Format format = QImage::Format_RGB32;
    return compareImages(before.convertToFormat(format), after.convertToFormat(format), 1.0, nullptr)
        == imgCmpDifferent;
}
//! [comparison]

} // namespace Snippets

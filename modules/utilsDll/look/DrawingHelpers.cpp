// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/GuiUtils.h"

#include "utilsDll/frame/Assertions.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cmath>

void drawSeparatorLine(QPainter *painter, const QPointF &origin, double length, Qt::Orientation orientation,
                       const QColor &first, const QColor &second)
{
    if (!painter || length == 0) {
        return;
    }
    const QPen before = painter->pen();
    const bool isVertical = orientation == Qt::Vertical;
    const double distance = std::abs(length);
    const QPointF end = origin + (isVertical ? QPointF(0, distance) : QPointF(distance, 0));
    const auto draw = [&](const QColor &colour, double side) {
        const QPen pen(colour, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        const double shift = pen.widthF() * 0.5 * side;
        const QPointF aside = isVertical ? QPointF(shift, 0) : QPointF(0, shift);
        painter->setPen(pen);
        painter->drawLine(origin + aside, end + aside);
    };
    draw(first, -1);
    draw(second, 1);
    painter->setPen(before);
}

void drawShadowRect(QPainter *painter, const QRect &rect)
{
    if (!painter || !rect.isValid()) {
        return;
    }
    // the folder's name is spelled like this
    static const QPixmap leftTop(u":/icons/backgroungs/preview-shadow-left-top.png"_qs);
    static const QPixmap left(u":/icons/backgroungs/preview-shadow-left.png"_qs);
    static const QPixmap leftBottom(u":/icons/backgroungs/preview-shadow-left-bottom.png"_qs);
    static const QPixmap bottom(u":/icons/backgroungs/preview-shadow-bottom.png"_qs);
    static const QPixmap rightBottom(u":/icons/backgroungs/preview-shadow-right-bottom.png"_qs);
    static const QPixmap right(u":/icons/backgroungs/preview-shadow-right.png"_qs);
    static const QPixmap rightTop(u":/icons/backgroungs/preview-shadow-right-top.png"_qs);
    static const QPixmap top(u":/icons/backgroungs/preview-shadow-top.png"_qs);
    constexpr int side = 3;
    constexpr int below = 5;
    constexpr int above = 1;
    painter->drawPixmap(rect.left() - side, rect.top(), leftTop);
    painter->drawPixmap(rect.left() - side, rect.top(), side, rect.height(), left);
    painter->drawPixmap(rect.left() - side, rect.bottom() + 1, leftBottom);
    painter->drawPixmap(rect.left(), rect.bottom() + 1, rect.width(), below, bottom);
    painter->drawPixmap(rect.right() + 1, rect.bottom() + 1, rightBottom);
    painter->drawPixmap(rect.right() + 1, rect.top(), side, rect.height(), right);
    painter->drawPixmap(rect.right() + 1, rect.top() - above, side, above, rightTop);
    painter->drawPixmap(rect.left(), rect.top() - above, rect.width(), above, top);
}

QFont createComboFont(const QWidget *widget, QFont::Weight weight)
{
    QFont font = widget ? widget->font() : QApplication::font();
    font.setPointSizeF(10.0);
    if (weight == QFont::Light) {
        font.setFamily(u"Roboto Light"_qs);
    } else if (weight == QFont::Normal) {
        font.setFamily(u"RobotoMedium"_qs);
    }
    return font;
}

namespace ZYX_zglv6 {

void drawWidgetBackground(QPaintDevice *device, const QRect &rect, int gray)
{
    ASSERT_X_RETURN(device, "Bug!!!");
    QPainter painter(device);
    painter.setPen(Qt::NoPen);
    painter.fillRect(rect, QColor(gray, gray, gray, 255));
}

void drawRoundedImageBorder(QPainter *painter, const QRect &rect, const QPixmap &border, int corner, int shift)
{
    if (!painter || rect.isNull()) {
        return;
    }
    const QRect frame = rect.adjusted(-shift, -shift, shift, shift);
    const int last = corner + 1; // where the second corners begin in the image
    const int right = frame.right() - corner + 1; // and in the frame
    const int bottom = frame.bottom() - corner + 1;
    const auto between = [](int x1, int y1, int x2, int y2) { return QRect(QPoint(x1, y1), QPoint(x2, y2)); };

    const QRect top(corner, 0, 1, corner);
    const QRect left(0, corner, corner, 1);
    painter->drawPixmap(frame.topLeft(), border, QRect(0, 0, corner, corner));
    painter->drawPixmap(between(frame.left() + corner, frame.top(), frame.right() - corner, frame.top() + corner - 1),
                        border, top);
    painter->drawPixmap(QPoint(right, frame.top()), border, QRect(last, 0, corner, corner));
    painter->drawPixmap(between(frame.left(), frame.top() + corner, frame.left() + corner - 1, frame.bottom() - corner),
                        border, left);
    painter->drawPixmap(between(right, frame.top() + corner, frame.right(), frame.bottom() - corner), border,
                        left.translated(last, 0));
    painter->drawPixmap(QPoint(frame.left(), bottom), border, QRect(0, last, corner, corner));
    painter->drawPixmap(between(frame.left() + corner, bottom, frame.right() - corner, frame.bottom()), border,
                        top.translated(0, last));
    painter->drawPixmap(QPoint(right, bottom), border, QRect(last, last, corner, corner));
}

QSize sizeOfIcon(const QIcon &icon, QIcon::Mode mode, QIcon::State state)
{
    QSize largest(0, 0);
    for (const QSize &size : icon.availableSizes(mode, state)) {
        largest = largest.expandedTo(size);
    }
    return largest;
}

void paintIcon(QPainter *painter, const QIcon &icon, const QRect &rect, Qt::AspectRatioMode mode, QIcon::Mode iconMode,
               QIcon::State state)
{
    if (!painter || icon.isNull()) {
        return;
    }
    if (mode == Qt::IgnoreAspectRatio) {
        icon.paint(painter, rect, Qt::AlignCenter, iconMode, state);
        return;
    }
    QRect place(QPoint(0, 0), sizeOfIcon(icon, iconMode, state).scaled(rect.size(), mode));
    place.moveCenter(rect.center());
    icon.paint(painter, place, Qt::AlignCenter, iconMode, state);
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/SharedUtils.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

// What tests need to see how a widget is painted under the product's sheets.
namespace StyledWidgets {

using Options = QFlags<ZYX_zglv6::QssLoadOption>;

inline constexpr int gradientTolerance = 2; // a button's own rounding of a gradient's steps

/*! A window with the application's sheets, for a test's widgets. */
class StyledWindow : public QWidget
{
public:
    explicit StyledWindow(const Options &options = ZYX_zglv6::QssLoadBaseSheets)
    {
        ZYX_zglv6::setCustomStyleSheet(this, options, QString());
        resize(400, 300);
    }

    /*! Gives \a widget, which has its name already, the window's look and a size of its own. */
    template <typename Widget>
    Widget *with(Widget *widget, const QSize &size)
    {
        widget->setParent(this);
        widget->resize(size);
        widget->ensurePolished();
        return widget;
    }
};

inline QImage painted(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline bool isNear(QRgb colour, QRgb expected, int tolerance)
{
    return std::abs(qRed(colour) - qRed(expected)) <= tolerance
        && std::abs(qGreen(colour) - qGreen(expected)) <= tolerance
        && std::abs(qBlue(colour) - qBlue(expected)) <= tolerance;
}

inline QString differenceAt(const QImage &image, const QPoint &place, const QColor &expected, int tolerance = 0)
{
    const QRgb colour = image.pixel(place);
    return isNear(colour, expected.rgb(), tolerance)
        ? QString()
        : u"(%1, %2) is %3, not %4"_qs.arg(place.x()).arg(place.y()).arg(QColor(colour).name(), expected.name());
}

} // namespace StyledWidgets

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QPoint>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QPushButton>

/*! Shifts what is pressed by 11 to the side and by 13 down. */
class ShiftingStyle : public QCommonStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        switch (metric) {
        case PM_ButtonShiftHorizontal:
            return 11;
        case PM_ButtonShiftVertical:
            return 13;
        default:
            return QCommonStyle::pixelMetric(metric, option, widget);
        }
    }
};

class ShiftedStyle : public ZYX_zglv6::CustomZyxAppStyle
{
public:
    ShiftedStyle()
    {
        setBaseStyle(new ShiftingStyle); // takes it over
    }

    QPoint shift(const QWidget *widget) const
    {
        return {pixelMetric(PM_ButtonShiftHorizontal, nullptr, widget),
                pixelMetric(PM_ButtonShiftVertical, nullptr, widget)};
    }

    /*! Of any widget of \a name. */
    QPoint shift(const QString &name) const
    {
        QWidget widget;
        widget.setObjectName(name);
        return shift(&widget);
    }
};

inline constexpr QPoint noShift(0, 0);
inline constexpr QPoint baseShift(11, 13);

class Button : public QPushButton
{
public:
    explicit Button(const QString &name)
    {
        setObjectName(name);
    }

    /*! Connections of the signals that the style follows; -1 if not as many of one as of the other. */
    int connections() const
    {
        const int ofDestruction = receivers(SIGNAL(destroyed(QObject *)));
        return receivers(SIGNAL(objectNameChanged(QString))) == ofDestruction ? ofDestruction : -1;
    }
};

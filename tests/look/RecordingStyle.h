// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QList>
#include <QtGui/QPixmap>
#include <QtWidgets/QCommonStyle>

#include <utility>

/*! What a call brought along. */
struct Call
{
    int what = -1;
    const QStyleOption *option = nullptr;
    const void *other = nullptr; // a painter or return data
    const QWidget *widget = nullptr;

    bool operator==(const Call &) const = default;
};

/*! Writes down what arrives, and answers with numbers and pixmaps that no other style has. */
class RecordingStyle : public QCommonStyle
{
public:
    static constexpr int metricOffset = 1000;
    static constexpr int hintOffset = 2000;

    mutable QList<Call> calls;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        calls.append({int(element), option, painter, widget});
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        calls.append({int(element), option, painter, widget});
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        calls.append({int(metric), option, nullptr, widget});
        return metricOffset + int(metric);
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        calls.append({int(hint), option, returnData, widget});
        return hintOffset + int(hint);
    }

    QPixmap standardPixmap(StandardPixmap standardPixmap, const QStyleOption *option,
                           const QWidget *widget) const override
    {
        calls.append({int(standardPixmap), option, nullptr, widget});
        return QPixmap(3, 2);
    }
};

/*! The style under test upon a recording one. */
class RecordedStyle : public ZYX_zglv6::CustomZyxAppStyle
{
public:
    RecordedStyle()
    {
        setBaseStyle(base);
    }

    QList<Call> takeCalls() const
    {
        return std::exchange(base->calls, {});
    }

private:
    RecordingStyle *base = new RecordingStyle; // owned by the proxy
};

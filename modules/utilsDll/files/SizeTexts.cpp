// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/FileUtils.h"

#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QSize>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ZYX_zglv6 {

namespace {

constexpr long long kilobyte = 1024;
constexpr double perKilobyte = 1.0 / 1024;
constexpr double centimetresPerInch = 2.54;
constexpr double millimetresPerInch = 25.4;
constexpr double defaultResolution = 72; // dots per inch, without a screen

enum Unit { Pixels, Inches, Centimetres, Millimetres };

/*! Pixels per inch, by axis. */
QPointF resolution()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return {defaultResolution, defaultResolution};
    }
    return screen->devicePixelRatio() * QPointF(screen->physicalDotsPerInchX(), screen->physicalDotsPerInchY());
}

struct Format
{
    double perInch; // units; 0 for pixels
    int decimals;
};

Format formatOf(int unit)
{
    switch (unit) {
    case Pixels:
        return {0, 0};
    case Inches:
        return {1, 2};
    case Centimetres:
        return {centimetresPerInch, 1};
    case Millimetres:
        return {millimetresPerInch, 0};
    default:
        ASSERT(false && "unknown unit");
        return {0, 0};
    }
}

QString suffixOf(int unit)
{
    switch (unit) {
    case Pixels:
        return QObject::tr("px");
    case Inches:
        return QObject::tr("in");
    case Centimetres:
        return QObject::tr("cm");
    case Millimetres:
        return QObject::tr("mm");
    default:
        ASSERT(false && "unknown unit");
        return {};
    }
}

} // namespace

QString fileSizeToString(const long long &size)
{
    const auto bytes = static_cast<double>(size);
    if (size <= kilobyte) {
        return QString::number(bytes, 'g', 6) + QObject::tr("B");
    }
    if (size <= kilobyte * kilobyte) {
        return QString::number(bytes * perKilobyte, 'f', 1) + QObject::tr("KB");
    }
    return QString::number(bytes * perKilobyte * perKilobyte, 'f', 1) + QObject::tr("MB");
}

QString sizeToString(const QSize &size)
{
    const int unit = CSettings().value(imageSizeUnitsKey, int(Pixels)).toInt();
    const QPointF dotsPerInch = resolution();
    const Format format = formatOf(unit);
    const auto inUnits = [&format](int pixels, double dots) {
        const double value = format.perInch > 0 ? pixels * format.perInch / dots : pixels;
        return QString::number(value, 'f', format.decimals);
    };
    return inUnits(size.width(), dotsPerInch.x()) + u" x " + inUnits(size.height(), dotsPerInch.y()) + u' '
        + suffixOf(unit);
}

} // namespace ZYX_zglv6

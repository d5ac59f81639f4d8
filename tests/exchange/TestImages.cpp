// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TestImages.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QString>
#include <QtGui/QRgba64>

namespace ExchangeTest {

namespace {

quint64 largestValue(int depth)
{
    return depth == 16 ? 65535 : 255;
}

QRgba64 colorAt(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y).rgba64();
}

/*! The image's own values of a pixel: R, G, B. */
QList<quint64> channelsAt(const QImage &image, int x, int y)
{
    const QRgba64 color = colorAt(image, x, y);
    if (depthOf(image) == 16) {
        return {color.red(), color.green(), color.blue()};
    }
    return {color.red8(), color.green8(), color.blue8()};
}

void setChannels(QImage &image, int x, int y, const QList<quint64> &channels)
{
    const quint64 factor = depthOf(image) == 16 ? 1 : 257; // 8 bits spread over 16
    image.setPixelColor(x, y,
                        QColor(qRgba64(quint16(channels[0] * factor), quint16(channels[1] * factor),
                                       quint16(channels[2] * factor), 0xffff)));
}

QList<quint64> tonedChannels(const QList<quint64> &channels, quint64 most, bool isFrame)
{
    const quint64 grey = (299 * channels[0] + 587 * channels[1] + 114 * channels[2] + 500) / 1000;
    const quint64 curved = grey * grey * (3 * most - 2 * grey) / (most * most);
    const quint64 warmth = curved * (most - curved) / most * 3 / 8;
    QList<quint64> result{curved + warmth, curved, curved - warmth};
    for (quint64 &channel : result) {
        channel = isFrame ? channel / 4 : channel;
    }
    return result;
}

} // namespace

QImage noise(int width, int height, int depth)
{
    QImage image(width, height, depth == 16 ? QImage::Format_RGBX64 : QImage::Format_RGB888);
    QRandomGenerator random(1);
    const auto most = largestValue(depth);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            setChannels(image, x, y, {random.bounded(most + 1), random.bounded(most + 1), random.bounded(most + 1)});
        }
    }
    if (width > 4 && height > 2) {
        setChannels(image, 2, 1, {0, 0, 0});
        setChannels(image, 3, 1, {most, most, most});
    }
    return image;
}

int depthOf(const QImage &image)
{
    return image.depth() == 64 ? 16 : 8;
}

QImage toned(const QImage &image)
{
    QImage result = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isFrame = x == 0 || y == 0 || x == image.width() - 1 || y == image.height() - 1;
            setChannels(result, x, y, tonedChannels(channelsAt(image, x, y), largestValue(depthOf(image)), isFrame));
        }
    }
    return result;
}

QString difference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size() || depthOf(actual) != depthOf(expected)) {
        return u"%1 x %2, %3 bits"_qs.arg(actual.width()).arg(actual.height()).arg(depthOf(actual));
    }
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgba64 color = colorAt(actual, x, y);
            if (color != colorAt(expected, x, y)) {
                return u"%1, %2: %3, %4, %5"_qs.arg(x).arg(y).arg(color.red()).arg(color.green()).arg(color.blue());
            }
        }
    }
    return QString();
}

QByteArray packed(const QImage &image)
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            for (const quint64 channel : channelsAt(image, x, y)) {
                const auto deep = quint16(channel);
                bytes += depthOf(image) == 16 ? QByteArray(reinterpret_cast<const char *>(&deep), sizeof(deep))
                                              : QByteArray(1, char(channel));
            }
        }
    }
    return bytes;
}

} // namespace ExchangeTest

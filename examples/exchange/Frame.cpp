// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Frame.h"

#include <QtCore/QString>
#include <QtGui/QColorSpace>
#include <QtGui/QPainter>

#include <cstring>
#include <limits>
#include <utility>

namespace {

constexpr qsizetype channels = 3;
constexpr qsizetype deepPixel = 8; // bytes in the image: three channels and a filler
constexpr qsizetype packedDeepPixel = 6;
constexpr quint64 mostBits = std::numeric_limits<quint64>::max();

/*! More than 8 bits a channel. */
bool isDeep(QImage::Format format)
{
    switch (format) {
    case QImage::Format_BGR30:
    case QImage::Format_A2BGR30_Premultiplied:
    case QImage::Format_RGB30:
    case QImage::Format_A2RGB30_Premultiplied:
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
    case QImage::Format_Grayscale16:
    case QImage::Format_RGBX16FPx4:
    case QImage::Format_RGBA16FPx4:
    case QImage::Format_RGBA16FPx4_Premultiplied:
    case QImage::Format_RGBX32FPx4:
    case QImage::Format_RGBA32FPx4:
    case QImage::Format_RGBA32FPx4_Premultiplied:
        return true;
    default:
        return false;
    }
}

QImage onWhiteGround(const QImage &image, QImage::Format format)
{
    QImage ground(image.size(), format);
    ground.setColorSpace(image.colorSpace());
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(0, 0, image);
    return ground;
}

QImage withThreeChannels(QImage image)
{
    const QImage::Format format = isDeep(image.format()) ? QImage::Format_RGBX64 : QImage::Format_RGB888;
    if (image.hasAlphaChannel()) {
        return onWhiteGround(image, format);
    }
    image.convertTo(format);
    return image;
}

/*! Takes away the padding at the end of rows. The target never overtakes the source. */
void packRows(QImage &image)
{
    const qsizetype rowSize = channels * image.width();
    const qsizetype stride = image.bytesPerLine();
    uchar *pixels = image.bits();
    for (qsizetype y = 1; stride != rowSize && y < image.height(); ++y) {
        std::memmove(pixels + y * rowSize, pixels + y * stride, size_t(rowSize));
    }
}

/*! Takes away the filler of each pixel; rows of such images have no padding. */
void packDeepPixels(QImage &image)
{
    const qsizetype count = qsizetype(image.width()) * image.height();
    uchar *pixels = image.bits();
    for (qsizetype i = 1; i < count; ++i) {
        std::memmove(pixels + i * packedDeepPixel, pixels + i * deepPixel, size_t(packedDeepPixel));
    }
}

QImage deepImage(const char *pixels, const FrameSize &size)
{
    QImage image(size.width, size.height, QImage::Format_RGBX64);
    if (image.isNull()) {
        return image;
    }
    constexpr quint16 opaque = 0xffff;
    const qsizetype count = qsizetype(size.width) * size.height;
    uchar *target = image.bits();
    for (qsizetype i = 0; i < count; ++i) {
        std::memcpy(target + i * deepPixel, pixels + i * packedDeepPixel, size_t(packedDeepPixel));
        std::memcpy(target + i * deepPixel + packedDeepPixel, &opaque, sizeof(opaque));
    }
    return image;
}

void freePixels(void *pixels)
{
    ::operator delete(pixels);
}

} // namespace

QString FrameSize::refusal() const
{
    if (depth != 8 && depth != 16) {
        return u"%1 bits a channel are not known, only 8 and 16"_qs.arg(depth);
    }
    if (width < 1 || height < 1) {
        return u"%1 x %2 pixels are none"_qs.arg(width).arg(height);
    }
    if (isBeyondCounting()) {
        return u"%1 x %2 pixels can't be counted"_qs.arg(width).arg(height);
    }
    return QString();
}

bool FrameSize::isBeyondCounting() const
{
    const auto factor = [](int number) { return quint64(qMax(number, 0)); };
    const quint64 pixels = factor(width) * factor(height); // two numbers of 31 bits
    const quint64 bits = factor(depth) * quint64(channels);
    return bits > 0 && pixels > mostBits / bits;
}

QString FrameSize::toString() const
{
    return u"%1 x %2 pixels, %3 bits a channel"_qs.arg(width).arg(height).arg(depth);
}

QString pixelOrder()
{
    return u"The pixels beside a record are RGB, rows from the top, 16-bit values in the machine's byte order."_qs;
}

CPackedFrame::CPackedFrame(QImage image)
    : m_image(withThreeChannels(std::move(image)))
{
    if (m_image.isNull()) {
        return;
    }
    if (m_image.format() == QImage::Format_RGBX64) {
        m_size = {m_image.width(), m_image.height(), 16};
        packDeepPixels(m_image);
        return;
    }
    m_size = {m_image.width(), m_image.height(), 8};
    packRows(m_image);
}

bool CPackedFrame::isNull() const
{
    return m_image.isNull();
}

const char *CPackedFrame::pixels() const
{
    return reinterpret_cast<const char *>(m_image.constBits());
}

const FrameSize &CPackedFrame::size() const
{
    return m_size;
}

QImage imageOfFrame(Pixels pixels, const FrameSize &size)
{
    if (!pixels || !size.refusal().isEmpty()) {
        return QImage();
    }
    if (size.depth == 16) {
        return deepImage(pixels.get(), size);
    }
    QImage image(reinterpret_cast<uchar *>(pixels.get()), size.width, size.height, channels * size.width,
                 QImage::Format_RGB888, freePixels, pixels.get());
    if (!image.isNull()) {
        static_cast<void>(pixels.release()); // the image's own now
    }
    return image;
}

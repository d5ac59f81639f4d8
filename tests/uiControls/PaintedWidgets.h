// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

inline constexpr QRgb paper = 0xff404040;

/*! A sheet of paper of \a size units. */
inline QImage sheet(const QSize &size, double pixelRatio)
{
    QImage image(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(paper);
    return image;
}

/*! The widget and its children on paper, without a background. */
inline QImage rendered(QWidget &widget, double pixelRatio = 1)
{
    QImage image = sheet(widget.size(), pixelRatio);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/*! The smallest rectangle with all pixels that are no paper. */
inline QRect inked(const QImage &image)
{
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != paper) {
                all |= QRect(x, y, 1, 1);
            }
        }
    }
    return all;
}

/*! \a rect in the pixels of an image of that ratio. */
inline QRect inPixels(const QRect &rect, double pixelRatio)
{
    return {rect.topLeft() * pixelRatio, rect.size() * pixelRatio};
}

inline QPixmap filled(const QSize &size, const QColor &colour = Qt::red)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

/*! An icon with a pixmap of each size. */
inline QIcon iconOf(const QList<QSize> &sizes)
{
    QIcon icon;
    for (const QSize &size : sizes) {
        icon.addPixmap(filled(size));
    }
    return icon;
}

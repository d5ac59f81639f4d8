// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>

namespace ExchangeTest {

/*! An image of noise, the same at each call, with 8 or 16 bits a channel and black and white among its pixels. */
QImage noise(int width, int height, int depth);

/*! 8 or 16 bits a channel, as the image has them. */
int depthOf(const QImage &image);

/*! The image that the application should make of \a image, pixel by pixel from the description of its toning. */
QImage toned(const QImage &image);

/*! Where \a actual is not \a expected, by depth, size or first pixel; empty if it is. */
QString difference(const QImage &actual, const QImage &expected);

/*! R, G, B of each pixel, rows from the top: as they should stand in the image file. */
QByteArray packed(const QImage &image);

} // namespace ExchangeTest

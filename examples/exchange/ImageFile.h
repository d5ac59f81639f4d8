// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>

class QString;

/*! The picture in a file, turned as its camera was held. Null if it can't be read: then \a error says why. */
QImage readImageFile(const QString &path, QString &error);

/*! Writes a PNG file, or nothing: then the result says why. */
QString writePng(const QImage &image, const QString &path);

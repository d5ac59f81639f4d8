// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ImageFile.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>

namespace {

constexpr int mostMegabytes = 4096; // frames of 600 MB are usual between two such sides; by itself Qt ends at 256

} // namespace

QImage readImageFile(const QString &path, QString &error)
{
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull()) {
        error = u"%1 can't be read: %2"_qs.arg(QDir::toNativeSeparators(path), reader.errorString());
    }
    return image;
}

QString writePng(const QImage &image, const QString &path)
{
    QSaveFile file(path); // no half picture stays behind
    if (!file.open(QIODevice::WriteOnly)) {
        return u"%1 can't be written: %2"_qs.arg(QDir::toNativeSeparators(path), file.errorString());
    }
    QImageWriter writer(&file, "png");
    if (!writer.write(image)) {
        return u"%1 can't be written: %2"_qs.arg(QDir::toNativeSeparators(path), writer.errorString());
    }
    return file.commit() ? QString()
                         : u"%1 can't be written: %2"_qs.arg(QDir::toNativeSeparators(path), file.errorString());
}

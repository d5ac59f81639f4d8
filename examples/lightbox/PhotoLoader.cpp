// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoLoader.h"

#include <QtGui/QImageReader>

#include <utility>

namespace {

constexpr QSize screenSize(2560, 1600);

} // namespace

CPhotoLoader::CPhotoLoader(QString path)
    : m_path(std::move(path))
{
    setAutoDelete(false); // whoever waits for it looks at it afterwards
}

QImage CPhotoLoader::image() const
{
    return m_image;
}

QSize CPhotoLoader::originalSize() const
{
    return m_originalSize;
}

QString CPhotoLoader::error() const
{
    return m_error;
}

void CPhotoLoader::execute()
{
    QImageReader reader(m_path);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    m_error = reader.errorString();
    m_originalSize = image.size();
    if (image.isNull() || stopRequired().value()) {
        return;
    }
    const bool isLarger = image.width() > screenSize.width() || image.height() > screenSize.height();
    m_image = isLarger ? image.scaled(screenSize, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image;
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoView.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtGui/QImageReader>
#include <QtGui/QPainter>

namespace {

constexpr QRgb ground = qRgb(0x23, 0x23, 0x23);
constexpr int border = 24;

} // namespace

CPhotoView::CPhotoView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool CPhotoView::showPhoto(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) {
        ZYX_LOG('E', path + u": " + reader.errorString());
    }
    m_photo = QPixmap::fromImage(image);
    update();
    return !m_photo.isNull();
}

QSize CPhotoView::photoSize() const
{
    return m_photo.size();
}

void CPhotoView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(ground));
    if (m_photo.isNull()) {
        return;
    }
    const QRect frame = rect().adjusted(border, border, -border, -border);
    QRect place(QPoint(), m_photo.size().scaled(frame.size(), Qt::KeepAspectRatio));
    place.moveCenter(frame.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, m_photo);
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoView.h"

#include <QtGui/QPainter>

#include <utility>

namespace {

constexpr QRgb ground = qRgb(0x23, 0x23, 0x23);
constexpr int border = 24;
constexpr int frameWidth = 12;

} // namespace

CPhotoView::CPhotoView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CPhotoView::showPhoto(const QImage &photo)
{
    m_photo = photo;
    develop();
}

void CPhotoView::setBlackAndWhite(bool isBlackAndWhite)
{
    m_isBlackAndWhite = isBlackAndWhite;
    develop();
}

void CPhotoView::setMirrored(bool isMirrored)
{
    m_isMirrored = isMirrored;
    develop();
}

void CPhotoView::setFramed(bool isFramed)
{
    m_isFramed = isFramed;
    update();
}

void CPhotoView::setFilling(bool isFilling)
{
    m_isFilling = isFilling;
    update();
}

void CPhotoView::develop()
{
    QImage print = m_isBlackAndWhite ? m_photo.convertToFormat(QImage::Format_Grayscale8) : m_photo;
    if (m_isMirrored) {
        print = std::move(print).mirrored(true, false);
    }
    m_print = QPixmap::fromImage(print);
    update();
}

void CPhotoView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(ground));
    if (m_print.isNull()) {
        return;
    }
    const QRect area = m_isFilling ? rect() : rect().adjusted(border, border, -border, -border);
    const Qt::AspectRatioMode mode = m_isFilling ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio;
    QRect place(QPoint(), m_print.size().scaled(area.size(), mode));
    place.moveCenter(area.center());
    if (m_isFramed) {
        painter.fillRect(place.adjusted(-frameWidth, -frameWidth, frameWidth, frameWidth), Qt::white);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, m_print);
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoView.h"

#include "uiControls/IconViewer.h"
#include "utilsDll/dialogs/ProgressPainter.h"

#include <QtGui/QPainter>
#include <QtGui/QTransform>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

using namespace ZYX_zglv6;

namespace {

constexpr int border = 24; // around the print, for its shadow
constexpr int framesOnALongSide = 60;
constexpr int turnsInACircle = 4;
constexpr qreal quarter = 90;
constexpr int wholeScale = 100;
constexpr std::array scales{5, 10, 25, 33, 50, 67, 100, 150, 200, 300, 400};

QImage framed(const QImage &photo)
{
    const int width = std::max(1, std::max(photo.width(), photo.height()) / framesOnALongSide);
    QImage print(photo.size() + QSize(width, width) * 2, QImage::Format_RGB32);
    print.fill(Qt::white);
    QPainter(&print).drawImage(width, width, photo);
    return print;
}

} // namespace

CPhotoView::CPhotoView(QWidget *parent)
    : QScrollArea(parent)
{
    auto *table = new QWidget;
    table->setObjectName(u"photoTable"_qs);
    table->setAttribute(Qt::WA_StyledBackground);
    table->setStyleSheet(u"#photoTable { background: #232323; }"_qs);
    m_margins = new QVBoxLayout(table);
    m_viewer = new CIconViewer(table);
    m_viewer->setExpandContent(true);
    m_margins->addWidget(m_viewer);
    setWidget(table);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Photograph"));
    m_progress = new ProgressPainter(this, viewport());
    m_zoomLabel = new ZoomPainter(this, viewport());
    layOut();
}

void CPhotoView::showPhoto(const QImage &photo)
{
    m_photo = photo;
    m_turns = 0;
    m_zoom = 0;
    develop();
}

QImage CPhotoView::printOf(const QImage &photo) const
{
    if (photo.isNull()) {
        return {};
    }
    QImage print = m_isBlackAndWhite ? photo.convertToFormat(QImage::Format_Grayscale8) : photo;
    // A print that is mirrored afterwards turns the other way.
    print = print.transformed(QTransform().rotate(m_isMirrored ? -quarter * m_turns : quarter * m_turns));
    if (m_isMirrored) {
        print.mirror(true, false);
    }
    return m_isFramed ? framed(print) : print;
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
    develop();
}

void CPhotoView::turn()
{
    m_turns = (m_turns + 1) % turnsInACircle;
    develop();
}

int CPhotoView::turns() const
{
    return m_turns;
}

void CPhotoView::setFilling(bool isFilling)
{
    m_isFilling = isFilling;
    m_zoom = 0;
    layOut();
}

void CPhotoView::zoomIn()
{
    const int current = m_zoom == 0 ? zoom() : m_zoom;
    const auto *next = std::upper_bound(scales.begin(), scales.end(), current);
    zoomTo(next == scales.end() ? current : *next);
}

void CPhotoView::zoomOut()
{
    const int current = m_zoom == 0 ? zoom() : m_zoom;
    const auto *next = std::lower_bound(scales.begin(), scales.end(), current);
    zoomTo(next == scales.begin() ? current : *(next - 1));
}

void CPhotoView::zoomToFit()
{
    zoomTo(0);
}

int CPhotoView::zoom() const
{
    const int width = m_viewer->pixmap().width();
    return width == 0 ? 0 : int(std::lround(wholeScale * double(m_viewer->outputRect().width()) / width));
}

void CPhotoView::startProgress()
{
    m_progress->onStartProgress(true);
}

void CPhotoView::stopProgress()
{
    m_progress->onStopProgress(false);
}

void CPhotoView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    m_progress->moveToCenter(0);
    m_zoomLabel->updateZoomPos(0);
}

void CPhotoView::develop()
{
    m_viewer->setPixmap(QPixmap::fromImage(printOf(m_photo)));
    layOut();
}

void CPhotoView::zoomTo(int percent)
{
    if (m_viewer->isEmpty()) {
        return;
    }
    m_zoom = percent;
    layOut();
    m_zoomLabel->showZoom(QString::number(zoom()), 0);
}

/*! At once, so that zoom() tells what will be seen. */
void CPhotoView::layOut()
{
    const bool isFilling = m_isFilling && m_zoom == 0;
    const int margin = isFilling ? 0 : border;
    m_margins->setContentsMargins(margin, margin, margin, margin);
    m_viewer->setAspectRatio(isFilling ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
    m_viewer->setShowShadow(!isFilling);
    m_viewer->setMinimumSize(m_zoom == 0 ? QSize(0, 0) : m_viewer->pixmap().size() * m_zoom / wholeScale);
    m_viewer->setExpandContent(m_zoom == 0);
    m_viewer->setMandatoryImageSize(m_zoom == 0 ? QSize(-1, -1) : m_viewer->minimumSize());
    m_margins->activate();
    setWidgetResizable(true); // lays the table out now, not at the next turn of the event loop
}

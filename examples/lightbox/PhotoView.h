// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QScrollArea>

class CIconViewer;
class QVBoxLayout;

namespace ZYX_zglv6 {
class ProgressPainter;
class ZoomPainter;
} // namespace ZYX_zglv6

/*!
    Shows one photograph on a dark ground with a shadow around it: as large as it fits, or magnified, and then it can be
    scrolled. What is done to it makes the print that is shown; the photograph stays as it is.
*/
class CPhotoView final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CPhotoView(QWidget *parent = nullptr);

    /*! Shows \a photo as it was taken, as large as it fits; with a null one only the ground. */
    void showPhoto(const QImage &photo);

    /*! \a photo, which may be a larger one than is shown, with all that was done to the one that is. */
    QImage printOf(const QImage &photo) const;

    void setBlackAndWhite(bool isBlackAndWhite);
    void setMirrored(bool isMirrored);
    void setFramed(bool isFramed);
    /*! By a quarter, clockwise. */
    void turn();
    /*! How many quarters, from 0 to 3. */
    int turns() const;
    /*! Fills the view to its edges, so that a part of the photograph may lie outside. */
    void setFilling(bool isFilling);

    /*! To the next larger or smaller of some usual scales; the new one is told for a second. */
    void zoomIn();
    void zoomOut();
    void zoomToFit();
    /*! In percent of the pixels of what is shown; 0 without a photograph. */
    int zoom() const;

    /*! Says that the view is busy, if that takes longer than a moment. */
    void startProgress();
    void stopProgress();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void develop();
    void zoomTo(int percent);
    void layOut();

    QImage m_photo;
    bool m_isBlackAndWhite = false;
    bool m_isMirrored = false;
    bool m_isFramed = false;
    bool m_isFilling = false;
    int m_turns = 0; // quarters, as they are seen
    int m_zoom = 0; // in percent; 0 for as large as it fits
    QVBoxLayout *m_margins;
    CIconViewer *m_viewer;
    ZYX_zglv6::ProgressPainter *m_progress;
    ZYX_zglv6::ZoomPainter *m_zoomLabel;
};

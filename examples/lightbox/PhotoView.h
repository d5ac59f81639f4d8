// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

/*! Shows one photograph on a dark ground, as large as it fits. */
class CPhotoView final : public QWidget
{
    Q_OBJECT

public:
    explicit CPhotoView(QWidget *parent = nullptr);

    /*! Shows \a photo; with a null one only the ground. */
    void showPhoto(const QImage &photo);

    void setBlackAndWhite(bool isBlackAndWhite);
    void setMirrored(bool isMirrored);
    void setFramed(bool isFramed);
    /*! Fills the view to its edges, so that a part of the photograph may lie outside. */
    void setFilling(bool isFilling);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void develop();

    QImage m_photo;
    QPixmap m_print; // as it is shown
    bool m_isBlackAndWhite = false;
    bool m_isMirrored = false;
    bool m_isFramed = false;
    bool m_isFilling = false;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

/*! Shows one photograph as large as it fits, on a dark ground. */
class CPhotoView final : public QWidget
{
    Q_OBJECT

public:
    explicit CPhotoView(QWidget *parent = nullptr);

    /*! Shows the file at \a path. False, with nothing shown, if it is no image that can be read. */
    bool showPhoto(const QString &path);

    /*! Size of the photograph in pixels; empty while none is shown. */
    QSize photoSize() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_photo;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

#include <memory>

/*! The ground of one exhibit, of a fixed size. */
inline std::unique_ptr<QWidget> newStage(const QSize &size)
{
    auto stage = std::make_unique<QWidget>();
    stage->setObjectName(u"galleryStage"_qs);
    stage->setAttribute(Qt::WA_StyledBackground);
    stage->setFixedSize(size);
    return stage;
}

/*! A photograph of \a size, cut to it. */
inline QPixmap photograph(const QSize &size)
{
    const QPixmap whole(u":/gallery/photograph.jpg"_qs);
    const QPixmap scaled = whole.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy(QRect(QPoint(), size));
}

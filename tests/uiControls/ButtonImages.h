// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "uiControls/RetinaToolButton.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

inline constexpr QRgb normalColour = 0xff00ff00;
inline constexpr QRgb hoverColour = 0xff0000ff;
inline constexpr QRgb pressedColour = 0xffff0000;

/*! An image file for each look, of one colour. */
class ButtonImages
{
public:
    explicit ButtonImages(const QSize &size = {44, 44})
        : normal(save(u"normal.png"_qs, size, normalColour))
        , hover(save(u"hover.png"_qs, size, hoverColour))
        , pressed(save(u"pressed.png"_qs, size, pressedColour))
    {
    }

private:
    QString save(const QString &name, const QSize &size, QRgb colour) const
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(colour);
        const QString path = m_folder.filePath(name);
        return image.save(path) ? path : QString();
    }

    const QTemporaryDir m_folder;

public:
    const QString normal;
    const QString hover;
    const QString pressed;
};

/*! The colour of the button's icon; 0 without one. */
inline QRgb look(const QToolButton &button)
{
    const QImage image = button.icon().pixmap(QSize(44, 44)).toImage();
    return image.isNull() ? 0 : image.pixel(image.rect().center());
}

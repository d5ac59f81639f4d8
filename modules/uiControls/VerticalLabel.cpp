// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/VerticalLabel.h"

#include <QtGui/QPainter>

CVerticalLabel::CVerticalLabel(QWidget *parent)
    : QLabel(parent)
{
}

CVerticalLabel::CVerticalLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
}

CVerticalLabel::~CVerticalLabel() = default;

void CVerticalLabel::setLeftMargin(int margin)
{
    m_leftMargin = margin;
    update();
}

void CVerticalLabel::setTopMargin(int margin)
{
    m_topMargin = margin;
    update();
}

QSize CVerticalLabel::sizeHint() const
{
    return QLabel::sizeHint().transposed();
}

QSize CVerticalLabel::minimumSizeHint() const
{
    return QLabel::minimumSizeHint().transposed();
}

void CVerticalLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.rotate(270.0);
    // the base line lies a font size to the right; a font in points says -1 here, so its size must be in pixels
    painter.drawText(m_leftMargin - height(), font().pixelSize() + m_topMargin, text());
}

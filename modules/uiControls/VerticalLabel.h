// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtWidgets/QLabel>

/*!
    A label whose text runs from bottom to top, turned by a quarter. Plain text of one line: alignment, frame and rich
    text do not apply.

    Give its font a size in pixels, by a style sheet or QFont::setPixelSize(): with one in points the text begins
    a pixel beyond the left edge, and little of it is seen. Main thread only.
*/
class UTILSDLL_EXPORT CVerticalLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CVerticalLabel(QWidget *parent);
    CVerticalLabel(const QString &text, QWidget *parent);
    ~CVerticalLabel() override;

    /*! How far the text begins above the lower edge, in pixels. At first 0. */
    void setLeftMargin(int margin);

    /*! How far the text is moved to the right, in pixels. At first 0. */
    void setTopMargin(int margin);

    /*! Those of a QLabel with the same text, with width and height swapped. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_leftMargin = 0;
    int m_topMargin = 0;
};

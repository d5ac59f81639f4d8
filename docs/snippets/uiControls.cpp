// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "uiControls/IconViewer.h"
#include "uiControls/RetinaToolButton.h"
#include "uiControls/VerticalLabel.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace Snippets {

//! [viewer]
/*! Shows \a photograph in the middle of \a frame, with a shadow around it that is painted on the frame. */
CIconViewer *addViewer(QWidget &frame, const QPixmap &photograph)
{
    auto *viewer = new CIconViewer(&frame);
    viewer->setPixmap(photograph);
    viewer->setText(u"Lighthouse"_qs); // over the image, and what a screen reader says
    return viewer;
}
//! [viewer]

//! [button]
CRetinaToolButton *addBackButton(QWidget &frame)
{
    auto *back
        = new CRetinaToolButton(u":/icons/arrows/left-icon-default.svg"_qs, u":/icons/arrows/left-icon-hover.svg"_qs,
                                u":/icons/arrows/left-icon-onpressed.svg"_qs, &frame);
    back->setAccessibleName(u"Back"_qs);
    return back;
}
//! [button]

//! [label]
CVerticalLabel *addYear(QWidget &frame, const QString &year)
{
    auto *label = new CVerticalLabel(year, &frame);
    label->setStyleSheet(u"font-size: 10px"_qs); // in pixels: it counts in the text's place
    return label;
}
//! [label]

} // namespace Snippets

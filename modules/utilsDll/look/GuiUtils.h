// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtGui/QFont>
#include <QtGui/QIcon>

class QAbstractScrollArea;
class QAction;
class QColor;
class QDialog;
class QPaintDevice;
class QPainter;
class QPixmap;
class QPointF;
class QRect;
class QString;
class QWidget;

/*
    Small helpers for widgets. All belong to the main thread, and do nothing without the object that they are about:
    only drawWidgetBackground() reports that. Sizes are in the painter's or the widget's pixels.
*/

/*!
    Draws two lines of width 1 side by side, a groove, from \a origin to the right, or downwards for Qt::Vertical:
    \a first above or to the left, \a second below or to the right. The sign of \a length does not count; 0 draws
    nothing. The painter keeps its pen.
*/
UTILSDLL_EXPORT void drawSeparatorLine(QPainter *painter, const QPointF &origin, double length,
                                       Qt::Orientation orientation, const QColor &first, const QColor &second);

/*! Draws a shadow around \a rect: 3 wide at either side, 5 below and 1 above. Nothing for an invalid one. */
UTILSDLL_EXPORT void drawShadowRect(QPainter *painter, const QRect &rect);

/*!
    The font of a combo box's items: that of \a widget, or the application's for null, with 10 points. A weight of 300
    makes its family "Roboto Light", 400 "RobotoMedium"; the weight itself is not set.
*/
UTILSDLL_EXPORT QFont createComboFont(const QWidget *widget, QFont::Weight weight);

namespace ZYX_zglv6 {

/*! Fills \a rect with a gray of 0 to 255. A null device is a failed assertion. */
UTILSDLL_EXPORT void drawWidgetBackground(QPaintDevice *device, const QRect &rect, int gray);

/*! Fixes the widget's width to that of \a text in its font, and \a extra. */
UTILSDLL_EXPORT void adjustSizeByFont(QWidget *widget, const QString &text, int extra);

/*!
    Draws a frame around \a rect, grown by \a shift at each side, from \a border: an image of 2 * corner + 1 pixels in a
    square, whose middle row and column are stretched. What lies within the frame stays. Nothing for a null \a rect.
*/
UTILSDLL_EXPORT void drawRoundedImageBorder(QPainter *painter, const QRect &rect, const QPixmap &border, int corner,
                                            int shift);

/*! Makes the backgrounds and edges of the widget's palette transparent; texts keep their colours. */
UTILSDLL_EXPORT void setWidgetFullTransparency(QWidget *widget);

/*!
    Paints the icon into \a rect for Qt::IgnoreAspectRatio; else into its largest size, scaled to \a rect by \a mode,
    around its centre. An icon of pixmaps is painted no larger than it is, in the middle.
*/
UTILSDLL_EXPORT void paintIcon(QPainter *painter, const QIcon &icon, const QRect &rect, Qt::AspectRatioMode mode,
                               QIcon::Mode iconMode, QIcon::State state);

/*! The largest width and the largest height that the icon has, each for itself; (0, 0) if it has none. */
UTILSDLL_EXPORT QSize sizeOfIcon(const QIcon &icon, QIcon::Mode mode, QIcon::State state);

/*! Moves the dialog to the middle of the screen, without its task bar, on which its parent is, or without one itself.
 */
UTILSDLL_EXPORT void centerDialogOnDesktop(QDialog *dialog);

/*!
    Scrolls \a area so that \a child, with the margins, passes no right or lower edge of its viewport; a child wider or
    higher than that is centred. One that passes the left or upper edge moves further away.
*/
UTILSDLL_EXPORT void ensureWidgetVisible(QAbstractScrollArea *area, const QWidget *child, int xMargin, int yMargin);

/*! Moves the mouse by a pixel and back, so that Qt looks anew at what is below it. */
UTILSDLL_EXPORT void flickAppCursor();

/*!
    Makes the widget, or the menu, look anew whether the mouse is over it. Sends plain events: QEvent::Enter comes
    without a QEnterEvent. Nothing without an active window.
*/
UTILSDLL_EXPORT void flickHoverEvent(QWidget *widget);

/*! Enables or disables the close button that the system gives the window with the native id \a window. */
UTILSDLL_EXPORT void enableWindowCloseButton(quint64 window, bool enable);

/*! Adds " (", the shortcut and ")" to the action's tool tip, each time. Meant for actions that have a shortcut. */
UTILSDLL_EXPORT void appendShortcutToActionToolTip(QAction &action);

} // namespace ZYX_zglv6

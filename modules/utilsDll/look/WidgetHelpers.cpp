// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/GuiUtils.h"

#include "platform/CloseButton.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtGui/QAction>
#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtGui/QPointingDevice>
#include <QtGui/QScreen>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace ZYX_zglv6 {

namespace {

/*! One direction of a rectangle; the ends are inclusive, as Qt's. */
struct Extent
{
    int first;
    int last;

    int size() const
    {
        return last - first + 1;
    }
};

void scroll(QScrollBar &bar, const Extent &target, const Extent &view)
{
    if (target.size() > view.size()) {
        bar.setValue((target.first + target.last) / 2 - view.size() / 2);
        return;
    }
    int delta = 0;
    if (target.last > view.last) {
        delta = target.last - view.last;
    } else if (target.first < view.first) {
        delta = view.first - target.first; // away from what is hidden there: so it has always been
    }
    bar.setValue(std::clamp(bar.value() + delta, bar.minimum(), bar.maximum()));
}

void moveMouseInMenu(QMenu &menu, const QPoint &place)
{
    QMouseEvent move(QEvent::MouseMove, place, menu.mapToGlobal(place), Qt::NoButton, QGuiApplication::mouseButtons(),
                     QGuiApplication::keyboardModifiers(), QPointingDevice::primaryPointingDevice());
    QCoreApplication::sendEvent(&menu, &move);
    QCoreApplication::sendEvent(&menu, &move);
    if (menu.activeAction() && menu.activeAction()->isSeparator()) {
        menu.setActiveAction(nullptr);
    }
}

void sendPlainEvent(QWidget *widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

void adjustSizeByFont(QWidget *widget, const QString &text, int extra)
{
    if (widget) {
        widget->setFixedWidth(extra + widget->fontMetrics().horizontalAdvance(text));
    }
}

void setWidgetFullTransparency(QWidget *widget)
{
    if (!widget) {
        return;
    }
    QPalette palette = widget->palette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button, QPalette::Base, QPalette::Light,
                                           QPalette::Midlight, QPalette::Dark, QPalette::Mid, QPalette::Shadow}) {
        palette.setColor(role, Qt::transparent);
    }
    widget->setPalette(palette);
}

void centerDialogOnDesktop(QDialog *dialog)
{
    if (!dialog) {
        return;
    }
    const QWidget *onScreen = dialog->parentWidget() ? dialog->parentWidget() : dialog;
    dialog->move(onScreen->screen()->availableGeometry().center() - dialog->rect().center());
}

void ensureWidgetVisible(QAbstractScrollArea *area, const QWidget *child, int xMargin, int yMargin)
{
    if (!area || !child) {
        return;
    }
    const QWidget *viewport = area->viewport();
    if (child != viewport && !viewport->isAncestorOf(child)) {
        return; // a scroll bar is in the area, too, but not in what it scrolls
    }
    const QRect view = viewport->rect();
    const QRect target
        = QRect(child->mapTo(viewport, child->rect().topLeft()), child->mapTo(viewport, child->rect().bottomRight()))
              .adjusted(-xMargin, -yMargin, xMargin, yMargin);
    if (view.contains(target, true)) {
        return;
    }
    const QRect geometry = child->geometry();
    ZYX_LOG('D',
            u"child at (%1, %2), %3 x %4"_qs.arg(geometry.x())
                .arg(geometry.y())
                .arg(geometry.width())
                .arg(geometry.height()));
    scroll(*area->horizontalScrollBar(), {target.left(), target.right()}, {view.left(), view.right()});
    scroll(*area->verticalScrollBar(), {target.top(), target.bottom()}, {view.top(), view.bottom()});
}

void flickAppCursor()
{
    const QPoint place = QCursor::pos();
    QCursor::setPos(place.x() + 1, place.y() + 1);
    QCursor::setPos(place);
}

void flickHoverEvent(QWidget *widget)
{
    if (!widget || QCoreApplication::startingUp() || !QApplication::activeWindow()) {
        return;
    }
    const QPoint place = widget->mapFromGlobal(QCursor::pos());
    if (widget->rect().contains(place)) {
        flickAppCursor();
        sendPlainEvent(widget, QEvent::Leave);
        sendPlainEvent(widget, QEvent::Enter); // no QEnterEvent: receivers must not take it for one
        if (auto *menu = qobject_cast<QMenu *>(widget)) {
            moveMouseInMenu(*menu, place);
        }
    } else {
        sendPlainEvent(widget, QEvent::Leave);
    }
    widget->update();
}

void enableWindowCloseButton(quint64 window, bool enable)
{
    ZyxPlatform::enableCloseButton(window, enable);
}

void appendShortcutToActionToolTip(QAction &action)
{
    const QString shortcut = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(action.toolTip() + u" (" + shortcut + u')');
}

} // namespace ZYX_zglv6

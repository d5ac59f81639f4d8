// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "AccessibilityAudit.h"

#include <QtCore/QSet>
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QWidget>

namespace {

QString nameIn(const QWidget &widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + u" \"" + widget.objectName() + u"\"";
}

bool hasLinks(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label && label->text().contains(u"<a ") && !label->textInteractionFlags().testFlag(Qt::NoTextInteraction);
}

/*! What answers to the user. Scroll bars follow the keys of what they scroll. */
bool isControl(const QWidget &widget)
{
    if (!widget.isEnabled() || qobject_cast<const QScrollBar *>(&widget) || widget.focusProxy()) {
        return false;
    }
    return qobject_cast<const QAbstractButton *>(&widget) || hasLinks(widget)
        || (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/*! What Tab comes to, from \a root on. */
QSet<const QWidget *> reachedByTab(QWidget &root)
{
    QSet<const QWidget *> reached;
    for (QWidget *next = root.nextInFocusChain(); next && next != &root; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0) {
            reached.insert(next);
        }
    }
    return reached;
}

QStringList faultsOf(QWidget &widget, const QSet<const QWidget *> &reached)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&widget);
    if (!accessible) {
        return {u"nothing for a screen reader"_qs};
    }
    QStringList faults;
    const QAccessible::Role role = accessible->role();
    if (role == QAccessible::NoRole || role == QAccessible::Client) {
        faults.append(u"no role"_qs);
    }
    if (accessible->text(QAccessible::Name).isEmpty() && accessible->text(QAccessible::Value).isEmpty()) {
        faults.append(u"no name"_qs);
    }
    if (accessible->state().invisible || accessible->state().disabled) {
        faults.append(u"a wrong state"_qs);
    }
    if (!reached.contains(&widget)) {
        faults.append(u"not reached by Tab"_qs);
    }
    return faults;
}

} // namespace

QStringList accessibilityFaults(QWidget &root)
{
    QStringList faults;
    const QSet<const QWidget *> reached = reachedByTab(root);
    const QList<QWidget *> widgets = root.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->isVisibleTo(&root) || !isControl(*widget)) {
            continue;
        }
        for (const QString &fault : faultsOf(*widget, reached)) {
            faults.append(nameIn(*widget) + u": " + fault);
        }
    }
    return faults;
}

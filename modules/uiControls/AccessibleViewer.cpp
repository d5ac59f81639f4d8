// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/AccessibleViewer_p.h"

#include "uiControls/IconViewer.h"

#include <QtWidgets/QAccessibleWidget>

namespace {

/*! Qt's own interface would tell neither that it is an image nor its text. */
class AccessibleViewer final : public QAccessibleWidget
{
public:
    explicit AccessibleViewer(CIconViewer &viewer)
        : QAccessibleWidget(&viewer, QAccessible::Graphic)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? widget()->property("text").toString() : given;
    }
};

QAccessibleInterface *makeAccessibleViewer(const QString &className, QObject *object)
{
    if (className != QLatin1StringView(CIconViewer::staticMetaObject.className())) {
        return nullptr;
    }
    auto *viewer = qobject_cast<CIconViewer *>(object);
    return viewer ? new AccessibleViewer(*viewer) : nullptr; // Qt's cache owns it
}

} // namespace

void makeViewersAccessible()
{
    QAccessible::installFactory(makeAccessibleViewer); // Qt drops doubles, and forgets all with its application
}

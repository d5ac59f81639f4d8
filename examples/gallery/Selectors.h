// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! One step of a selector: QPushButton#okButton[highlighted="true"]. */
struct SelectorPart
{
    QString type; // empty for any
    QString name;
    QHash<QString, QString> properties;

    bool operator==(const SelectorPart &other) const = default;
};

/*! The widgets that a rule is for, from the outermost to the one that it styles. States and sub-controls are left out.
 */
using Selector = QList<SelectorPart>;

/*! What some rules of a sheet are for, with the states of it or of its parts that they tell apart. */
struct StyledControl
{
    Selector selector;
    QStringList states; // "hover", "checked" and so on
};

/*! What a style sheet's text is for, each selector once, in the order of their first rules. */
QList<StyledControl> controlsOf(const QString &sheet);

/*! As it would stand in a sheet. */
QString textOf(const Selector &selector);

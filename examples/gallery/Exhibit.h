// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

/*! Something of the library to be looked at: a live widget, or else a dialog that is opened. */
struct Exhibit
{
    QString name; // of its pictures, the kind first, such as "box-critical-ok"
    QString title;
    std::function<std::unique_ptr<QWidget>()> make; // the widget, on a ground of its own
    std::function<void(QWidget *parent)> open; // returns after the dialog, or with it on the screen
    bool hasPicture = true; // false for what moves, and for what the system paints
};

struct ExhibitSection
{
    QString title;
    QList<Exhibit> exhibits;
};

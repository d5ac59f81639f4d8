// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Selectors.h"

#include <QtWidgets/QWidget>

#include <memory>

/*! How a control is shown. */
enum class Appearance { Default, Hover, Pressed, Checked, Unchecked, Disabled };

/*!
    A widget that a rule with this \a selector is for, within those that the rule asks for around it, with something to
    be seen in it. What brings its parts with it, as a message box does, is shown whole. Null for a type that this
    program does not know.
*/
std::unique_ptr<QWidget> newSpecimen(const Selector &selector, Appearance appearance);

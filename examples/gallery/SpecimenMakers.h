// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QWidget>

#include <functional>

/*! Of one class: a widget with something to be seen in it, and one for others to be put into. */
struct SpecimenMakers
{
    std::function<QWidget *()> filled;
    std::function<QWidget *()> bare;
};

/*! For the class of that name; an empty one is any. Both are empty for a class that this program does not know. */
SpecimenMakers specimenMakers(const QString &type);

/*! The size of what is wide and high, such as a list. */
inline constexpr QSize viewSize(220, 96);

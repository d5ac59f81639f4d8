// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

#include <optional>

/*! The trash of the test's own home. */
namespace TrashCan {

/*! Names of the files in it; nothing where it can't be looked into. */
std::optional<QStringList> names();

/*! Where it can't be looked into nothing happens. */
void empty();

} // namespace TrashCan

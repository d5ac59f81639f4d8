// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/Sandbox.h"

#include <QtCore/QSettings>

#include <memory>

namespace TestSupport {

/*! The place where the identity store is to lie in \a sandbox, opened by itself. */
std::unique_ptr<QSettings> openIdentityPlace(const Sandbox &sandbox);

/*! A file of the same name that counts for all users, which QSettings reads by itself. Null where there is no such
 * thing. */
std::unique_ptr<QSettings> openPlaceOfAllUsers(const Sandbox &sandbox);

} // namespace TestSupport

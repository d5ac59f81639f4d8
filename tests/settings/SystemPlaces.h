// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSettings>
#include <QtCore/QString>

#include <memory>

namespace TestSupport {

/*! The product's own store, opened where this system keeps it. */
std::unique_ptr<QSettings> openProductStore();

/*! The organisation's store apart from it, in which the user's identity lies. */
std::unique_ptr<QSettings> openOrganizationStore();

/*! The store of the same name that counts for all users. Null where it can't be moved out of their way. */
std::unique_ptr<QSettings> openOrganizationStoreOfAllUsers();

/*! The file that the product's own store is kept in. Empty where it is no file. */
QString productStorePath();

/*! Has the system take \a folder for the user's documents. False if it doesn't. Call it with the Sandbox in place. */
bool keepDocumentsIn(const QString &folder);

/*! Makes a named pipe at \a path. False where there is no such thing. */
bool makePipe(const QString &path);

} // namespace TestSupport

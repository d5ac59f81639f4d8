// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>

namespace TestSupport {

/*! The identifiers of the running processes, in the order in which the system lists them. */
QList<qint64> processesInSystemOrder();

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

/*! Everything that Qt and the library report, apart from what the soak provokes. */
namespace Messages {

void install();

/*! Snapshots of checkable commands whose controls are gone, which is told of each time. */
int deletedActionReports();

QStringList unexpected();

} // namespace Messages

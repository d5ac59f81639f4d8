// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <cstddef>

/*! Where a dump of this process goes if it is written to now. */
QString crashDumpPath();

/*! Puts the type and the text of the exception that is being handled into \a text; without one \a text stays. */
void describeCurrentException(char *text, std::size_t size) noexcept;

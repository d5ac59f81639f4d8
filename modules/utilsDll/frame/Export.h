// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qglobal.h>

/*! Marks what the library promises to its hosts; everything without it stays inside. */
#ifdef UTILSDLL_BUILD
#define UTILSDLL_EXPORT Q_DECL_EXPORT
#else
#define UTILSDLL_EXPORT Q_DECL_IMPORT
#endif

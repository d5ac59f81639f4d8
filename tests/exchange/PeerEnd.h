// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! Ends this process as a crash does, in the eyes of its parent; without a dump, a box or a report. */
[[noreturn]] void crash();

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

namespace TestSupport {

/*! How often the library has asked the system which processes run, at least since the first call of this function. */
int processListCount();

} // namespace TestSupport

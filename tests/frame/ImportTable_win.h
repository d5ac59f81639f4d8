// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

namespace TestSupport {

/*!
    Makes the library call \a function in place of the imported one that has \a part in its name. The function that it
    called until then; null if it imports none.
*/
void *replaceImport(const char *part, void *function);

} // namespace TestSupport

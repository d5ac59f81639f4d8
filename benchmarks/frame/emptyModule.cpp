// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// A module with nothing in it: loading it costs what the system's loader costs.

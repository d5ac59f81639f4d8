/* SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors */
/* SPDX-License-Identifier: MIT */

/* A module of nearly nothing but its version stamp. */
__attribute__((visibility("default"))) int zyxStampedModule(void);

int zyxStampedModule(void)
{
    return 6;
}

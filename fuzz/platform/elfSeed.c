/* SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors */
/* SPDX-License-Identifier: MIT */

/* As little of a module as the linker accepts, so that most of the file is what the fuzzer is to change. */
int zyxFuzzSeed(void);

int zyxFuzzSeed(void)
{
    return 6;
}

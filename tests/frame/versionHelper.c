/* SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors */
/* SPDX-License-Identifier: MIT */
#include <stdio.h>

/* A process to look at: tells that it runs, and lives until its standard input is closed. */
int main(void)
{
    puts("ready");
    fflush(stdout);
    while (getchar() != EOF) {
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

struct Options;

// The steps of this host on its way up that come after those of CStartUp. Each prints one line.

/*!
    Makes this process leave a dump if it crashes, and looks for one that an earlier run has left; then it starts the
    program that sends it, unless this host leaves at once.
*/
void watchForCrashes(const Options &options);

void reportMainWindow();
void noteLaunch();

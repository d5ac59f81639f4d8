// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Frame.h"

/*!
    Makes a warm black-and-white print of a packed frame, in place. All is integer arithmetic with M, the largest value
    of a channel (255 or 65535), rounded down where nothing else stands:

    - grey: (299 R + 587 G + 114 B + 500) / 1000
    - a simple S-curve for contrast: s = (3 M grey^2 - 2 grey^3) / M^2
    - a warm tone, strongest in the middle: with t = s (M - s) / M and w = 3 t / 8, R = s + w, G = s, B = s - w
    - a dark frame: on the outermost pixels each channel is divided by 4
*/
void toneWarm(char *pixels, const FrameSize &size);

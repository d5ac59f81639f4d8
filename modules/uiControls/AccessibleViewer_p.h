// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! From now on assistive programs read each CIconViewer as an image with its text. Needs the application. */
void makeViewersAccessible();

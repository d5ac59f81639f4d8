// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/*! The product's sheets for a window of this program, with its fonts in lists, tables and texts too. */
void putOnWindowLook(QWidget &window);

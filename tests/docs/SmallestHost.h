// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! The main() of docs/snippets/smallestHost.cpp under a name of its own. It makes the application object. */
int runSmallestHost(int argc, char *argv[]);

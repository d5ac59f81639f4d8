// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

struct TestFolder;

/*! Packs as CompressDir() does: stored. */
bool packByLibzip(const TestFolder &folder);

bool unpackByLibzip(const TestFolder &folder);

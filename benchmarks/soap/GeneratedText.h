// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/*! The text as the toolkit's generated code writes it, in a document of its own. */
std::string writeGeneratedText(const std::string &text);

/*! And read again. Empty if it can't be read. */
std::string readGeneratedText(const std::string &document);

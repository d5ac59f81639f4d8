// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string_view>

/*! \a text with a blank in place of each character that a terminal would not show but obey. */
QString onOneLine(const QString &text);

/*!
    UTF-8 as a quoted text of characters that can be shown. Others are written as \\n, \\r, \\t or \\u{1b}, and a quote
    and a backslash with a backslash before them. Where \a bytes are not UTF-8, all above 7f are written as \\xff.
    Cut after 200 characters: then "..." and the number of bytes follow the quote.
*/
QString quoted(std::string_view bytes);

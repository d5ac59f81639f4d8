// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "loggerSupport/Utf8FileFacet_p.h"

#include <QtCore/QFile>
#include <QtCore/QString>

#include <log4cplus/tstring.h>

#include <locale>
#include <string>
#include <type_traits>

/*! Texts in the character type that log4cplus was built with. */
namespace ZYX_zglv6 {

/*! A file's name. Templates, so that only the half that fits is compiled. */
template <typename Character = log4cplus::tchar>
std::basic_string<Character> toLogFileName(const std::wstring &path)
{
    if constexpr (std::is_same_v<Character, wchar_t>) {
        return path;
    } else {
        return QFile::encodeName(QString::fromStdWString(path)).toStdString();
    }
}

template <typename Character = log4cplus::tchar>
std::basic_string<Character> toLogText(const QString &text)
{
    if constexpr (std::is_same_v<Character, wchar_t>) {
        return text.toStdWString();
    } else {
        return text.toStdString();
    }
}

/*! A message, which is UTF-8. A stream would widen it byte for byte, by the code page of the machine. */
template <typename Character = log4cplus::tchar>
std::basic_string<Character> toLogMessage(const char *message)
{
    if constexpr (std::is_same_v<Character, wchar_t>) {
        return QString::fromUtf8(message).toStdWString();
    } else {
        return message;
    }
}

/*! A locale that writes numbers plainly and wide characters as UTF-8, whatever the host has set. */
template <typename Character = log4cplus::tchar>
std::locale logFileLocale()
{
    if constexpr (std::is_same_v<Character, wchar_t>) {
        return std::locale(std::locale::classic(), new Utf8FileFacet); // the locale owns it
    } else {
        return std::locale::classic();
    }
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/Assertions.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QDebug>

#include <locale>
#include <sstream>

namespace ZYX_zglv6 {

namespace {

std::string describe(const char *form, const char *file, int line, const char *text)
{
    std::ostringstream description;
    description.imbue(std::locale::classic()); // no separators in the line's number, whatever the host's locale
    description << form << file << " line " << line;
    if (text != nullptr) {
        description << ": " << text;
    }
    return description.str();
}

} // namespace

void reportFailedAssertion(const char *function, const char *form, const char *file, int line, const char *text)
{
    const std::string description = describe(form, file, line, text);
    if (const ILoggerInterface *logger = loggerInstance()) {
        writeLogLine(*logger, 'E', function, description.c_str());
    }
    // One text as it stands: no blanks between its pieces and no quotes.
    QMessageLogger(nullptr, 0, nullptr).debug().noquote().nospace() << description.c_str();
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/FunctionName.h"

#include <QtCore/QString>

namespace ZYX_zglv6 {

/*! What the process logs through. */
class UTILSDLL_EXPORT ILoggerInterface
{
public:
    virtual ~ILoggerInterface();

    /*!
        Writes one message. \a level is 'D', 'I', 'W', 'E' or 'F' (debug, information, warning, error, fatal); \a
        message is zero-terminated UTF-8. From any thread; a log that can't be written never fails its caller.
    */
    virtual void log(char level, const char *message) const = 0;
};

/*! The process-wide logger; null until initLogger() has run. Owned by the library. */
UTILSDLL_EXPORT const ILoggerInterface *loggerInstance();

/*! Writes the line "\a function: \a message". What ZYX_LOG() calls. */
UTILSDLL_EXPORT void writeLogLine(const ILoggerInterface &logger, char level, const char *function,
                                  const QString &message);
UTILSDLL_EXPORT void writeLogLine(const ILoggerInterface &logger, char level, const char *function,
                                  const char *message);

} // namespace ZYX_zglv6

/*!
    Logs \a message, a QString or a UTF-8 literal, under the enclosing function's name. Without a logger the message is
    not even built.
*/
#define ZYX_LOG(level, message)                                                                                        \
    do {                                                                                                               \
        if (const ::ZYX_zglv6::ILoggerInterface *zyxLogger = ::ZYX_zglv6::loggerInstance()) {                          \
            ZYX_DECLARE_FUNCTION_NAME(zyxFunctionName);                                                                \
            ::ZYX_zglv6::writeLogLine(*zyxLogger, level, zyxFunctionName.data(), message);                             \
        }                                                                                                              \
    } while (false)

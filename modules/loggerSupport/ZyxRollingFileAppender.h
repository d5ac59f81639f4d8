// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <log4cplus/fileappender.h>

#include <string>

/*!
    A log file that each run of a program starts afresh. The logs of earlier runs stay behind as ".1" (the newest) to
    ".10".

    Within a run the file also rolls over once it has passed 1 MiB. Every record is flushed. Two processes with one
    log name share the file, and each start rolls it over under the other; nothing guards against that.
*/
class UTILSDLL_EXPORT ZyxRollingFileAppender : public log4cplus::RollingFileAppender
{
public:
    /*! Rolls over what lies at \a path, and opens it empty. log4cplus reports a failure on its own channel. */
    explicit ZyxRollingFileAppender(const std::wstring &path);
    ~ZyxRollingFileAppender() override;

private:
    ZyxRollingFileAppender(const std::wstring &path, bool hasEarlierLog);
};

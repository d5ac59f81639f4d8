// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/LoggerInterface.h"

#include <memory>

namespace ZYX_zglv6 {

/*! Makes \a logger the process-wide one and destroys the one before it. Not to be called while other threads log. */
void setLoggerInstance(std::unique_ptr<ILoggerInterface> logger);

} // namespace ZYX_zglv6

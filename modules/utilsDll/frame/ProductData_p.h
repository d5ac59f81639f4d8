// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZYX_zglv6 {

/*! What the build knows of the product: the CMake cache variables ZYX_PRODUCT_VERSION and ZYX_FRAMEWORK_VERSION. */
QLatin1StringView productVersion();
QLatin1StringView frameworkVersion();

} // namespace ZYX_zglv6

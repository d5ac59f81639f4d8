// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZYX_zglv6 {

// What the build knows of the product: ZYX_PRODUCT_VERSION and the CMake cache variables beside it.

QLatin1StringView productVersion();
QLatin1StringView frameworkVersion();
QLatin1StringView crashServiceHost();
QLatin1StringView serviceOwnerHost();
QLatin1StringView webHost();

/*! That of this library, which no variable changes. */
QLatin1StringView libraryVersion();

} // namespace ZYX_zglv6

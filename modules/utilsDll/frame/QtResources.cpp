// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QDir> // Q_INIT_RESOURCE

// Outside of all namespaces, as the generated functions are.

static void initCollections()
{
    Q_INIT_RESOURCE(main);
    Q_INIT_RESOURCE(translations);
}

static void cleanupCollections()
{
    // The generated functions release with 3 + qResourceFeatureZlib() what was registered with a plain 3, on purpose:
    // the sum is what makes the linker keep Qt's decompressor for the collection.
    Q_CLEANUP_RESOURCE(main);
    Q_CLEANUP_RESOURCE(translations);
}

namespace ZYX_zglv6 {

void initQtResources()
{
    initCollections();
}

void cleanupQtResources()
{
    cleanupCollections();
}

} // namespace ZYX_zglv6

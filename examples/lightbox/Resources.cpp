// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Resources.h"

#include <QtCore/QDir> // Q_INIT_RESOURCE

void initLightboxResources()
{
    Q_INIT_RESOURCE(lightbox);
}

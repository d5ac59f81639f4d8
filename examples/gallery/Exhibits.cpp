// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"

QList<ExhibitSection> exhibitSections(const QString &photoFolder)
{
    return {{u"Boxes"_qs, boxExhibits()},
            {u"Dialogs"_qs, dialogExhibits(photoFolder)},
            {u"Overlays"_qs, overlayExhibits()},
            {u"Widgets"_qs, widgetExhibits()}};
}

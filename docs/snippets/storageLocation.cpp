// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "storageLocation/storageLocation.h"

#include <stdexcept>

using namespace ZYX_zglv6;

namespace Snippets {

//! [initialize]
void pointAtPreferences(const QString &path)
{
    const bool isChosen = !path.isEmpty();
    CStorageLocation::initializeFromPreferencesFile(isChosen ? path
                                                             : CStorageLocation::getDefaultPreferencesFilePath());
}
//! [initialize]

//! [own folder]
QString contactSheetPath(const QString &name)
{
    const QString folder
        = CStorageLocation::dataLocation(u"ContactSheets"_qs, CStorageLocation::DataLocationCreateFolder);
    return QDir(folder).absoluteFilePath(name); // QDir also reads the doubled separator in the middle as one
}
//! [own folder]

//! [unset]
bool isStorageKnown()
{
    try {
        CStorageLocation::getCurrentDataDirectory();
        return true;
    } catch (const std::runtime_error &) {
        return false; // "Data directory is not set"
    }
}
//! [unset]

} // namespace Snippets

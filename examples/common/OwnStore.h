// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*!
    Gives the examples a system store of settings of their own, so that trying them leaves the user's settings alone: a
    folder, with the local application data beside it; on Windows the registry key "Software\UtilsDllzglv6 Lightbox",
    and the library's default data folder is still made, empty, in the user's profile. A shipping host has no such call.
    Before the first use of QSettings and QStandardPaths.
*/
void useOwnStore(const QString &workFolder);

/*!
    Leaves what an installer would, for the about box: that the folder "Licenses" lies beside this program. Behind
    useOwnStore(). On Windows that would be a key for all users of the machine: nothing is written there, and the page
    of licences stays empty.
*/
void noteInstallation();

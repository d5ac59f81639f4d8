// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class CMainWindow;

/*!
    Zooms, opens the about box of \a window and turns to its licences, and has the data files checked, whose
    warnings it closes. The answer says in words what came of it.
*/
QString tourDialogs(CMainWindow &window);

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

// Whom the sheets look for. A name that is changed here is changed in the sheets, in the documents and in the hosts.
namespace StyleSheets {

/*! Object names that the library gives, or will give, to its own widgets. */
QStringList ownObjectNames();

/*! Object names that hosts give to their windows and panels, and to what lies in them. */
QStringList hostObjectNames();

/*! Object names whose rules stand in the sheets and find no widget, in the library or in a host. */
QStringList objectNamesOfNoWidget();

/*! Classes of hosts; Qt's own begin with Q. */
QStringList hostClasses();

} // namespace StyleSheets

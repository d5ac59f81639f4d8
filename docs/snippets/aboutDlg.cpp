// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "aboutDlg/AboutDlg.h"

using namespace ZYX_zglv6;

namespace Snippets {

//! [about]
CAboutDlg *showAboutBox(QWidget *window)
{
    auto *about = new CAboutDlg(window, Qt::WindowFlags());
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->updateProductName(u"Elite"_qs); // behind the name
    about->myExec(); // returns at once
    return about;
}
//! [about]

} // namespace Snippets

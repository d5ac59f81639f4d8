// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "baseDialogs/NativeDialogs.h"
#include "baseDialogs/WidgetFromHWND.h"

#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace Snippets {

//! [target]
/*! Where to save what was made of \a photograph, which may be a raw file that nobody can write. */
QString chooseTarget(QWidget *window, const QString &photograph)
{
    QString filter = u"TIFF (*.tiff)"_qs; // not empty: that would be reported
    return Singleton<CNativeDialogs>::instance().getSaveFileName(
        window, u"Save"_qs, photograph, u"TIFF (*.tiff);;JPEG (*.jpg)"_qs, &filter, QFileDialog::DontUseNativeDialog);
}
//! [target]

//! [folder]
/*! A folder of photographs, or one of them; empty if the user wants none. */
QString chooseSource(QWidget &window, const QString &lastFolder)
{
    return Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(&window, true, u"Photographs"_qs, lastFolder,
                                                                         QFileDialog::Options());
}
//! [folder]

//! [panel]
/*! Puts \a panel into a window of a host that knows nothing of Qt. */
void showInHost(HWND hostWindow, QWidget *panel)
{
    auto *ground = new CWidgetFromHWND(hostWindow); // nobody else owns it
    auto *layout = new QVBoxLayout(ground);
    layout->addWidget(panel);
    ground->show();
}
//! [panel]

} // namespace Snippets

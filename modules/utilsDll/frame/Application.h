// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/qglobal.h>

class QWidget;

namespace ZYX_zglv6 {

/*!
    What the library asks of a host's application object, which derives from it beside its QCoreApplication class:

        class CLightboxApplication : public QApplication, public IApplication

    The order of the virtual operations is part of the interface: the main window is the fifth.
*/
class UTILSDLL_EXPORT IApplication
{
public:
    virtual ~IApplication();

    /*!
        Three operations that are the host's business: the library never calls them, and they do nothing by themselves.
    */
    virtual void hostOperation2();
    virtual void hostOperation3();
    virtual void hostOperation4();

    /*! The application's main window, owned by the application; null while there is none. */
    virtual QWidget *mainWindow() = 0;
};

/*!
    Native handle of the main window of the running application; 0, with a line in the log, if the application object is
    no IApplication or has no main window. Main thread only. A window without a native one gets it by this call.
*/
UTILSDLL_EXPORT quint64 mainWindowHandle();

} // namespace ZYX_zglv6

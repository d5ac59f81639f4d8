// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QFlags>
#include <QtGui/QIcon>

class QString;
class QWidget;

/*
    The product's dark look: style sheets, fonts and icon out of the embedded files, and the folder of Qt's plug-ins.
    All belong to the main thread.
*/

namespace ZYX_zglv6 {

/*! What setCustomStyleSheet() joins to the base sheet ":/qss/custom.qss". */
enum QssLoadOption {
    QssLoadBaseSheets = 1, /*!< the application's sheets and that of the current language */
    QssKeepWidgetSheet = 2, /*!< the widget's present sheet, at the very end */
    QssSkipAdditionalSheet = 4, /*!< with QssLoadBaseSheets: not ":/qss/essintial.qss"; nothing without it */
    QssLoadCrashSender = 8, /*!< ":/qss/crash_sender.qss" */
    QssLoadPrinting = 16, /*!< ":/qss/printing.qss" */
};
Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<QssLoadOption>)

/*!
    Sets a style sheet on \a widget, in place of its present one: the base sheet, what \a options add, the
    file \a extraQssFile, which may be empty, and the present sheet if it is to be kept. A file that can't be
    read adds nothing; without any text the widget keeps its sheet, which is a failed assertion. Nothing for a
    null widget. Another thread than the main one is a failed assertion, and the work is done all the same.

    The files are read at each call: call it once for a top-level window.
*/
UTILSDLL_EXPORT void setCustomStyleSheet(QWidget *widget, const QFlags<QssLoadOption> &options,
                                         const QString &extraQssFile);

/*! Makes the embedded fonts known to the application. One that can't be read stays unknown. */
UTILSDLL_EXPORT void addApplicationFonts();

/*! The product's icon in eight sizes from 16 to 1024 pixels; without the embedded files it has none. */
UTILSDLL_EXPORT QIcon zyxAppIcon();

/*! Sets zyxAppIcon() on the application. False if that is null, and without an application: a failed assertion. */
UTILSDLL_EXPORT bool setupApplicationIcon();

/*!
    The folder that Qt's plug-ins lie in: that of the program, or in a host's plug-in the parent of the connector's
    folder, with the system's separators and one at the end. The first answer that is not empty stands for the process,
    whatever later calls ask for. Empty if the system does not tell.
*/
UTILSDLL_EXPORT QString getQtPluginsDir(bool inHostPlugin);

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtWidgets/QWidget>

// As the Windows headers have it; on X11 a window's number stands in its place.
using HWND = struct HWND__ *; // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

/*!
    A widget that is a child of \a parent, a window of another program or of one without Qt. It does not follow
    that window's size, and is not owned by it. Main thread only.
*/
class UTILSDLL_EXPORT CWidgetFromHWND : public QWidget
{
    Q_OBJECT

public:
    explicit CWidgetFromHWND(HWND parent);
    ~CWidgetFromHWND() override;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "WindowLook.h"

#include "utilsDll/look/SharedUtils.h"

#include <QtWidgets/QWidget>

using namespace ZYX_zglv6;

namespace {

// Where the sheets leave the fonts to the system.
constexpr QLatin1StringView
    ownRules("QAbstractItemView, QHeaderView::section, QLineEdit { font-family: \"Roboto Light\"; font-size: 13px; }"
             "QTextBrowser#presetInfoText { font-family: \"Roboto Light\"; font-size: 13px; }"
             "QListView#decadeList::item { padding: 5px 6px; border: none; }");

} // namespace

void putOnWindowLook(QWidget &window)
{
    window.setStyleSheet(ownRules);
    setCustomStyleSheet(&window, QssLoadBaseSheets | QssKeepWidgetSheet, QString());
}

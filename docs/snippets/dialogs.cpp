// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace Snippets {

//! [rows]
void addRows(QWidget *panel, const QList<Caption> &captions)
{
    auto *layout = new QVBoxLayout(panel);
    for (const auto &[id, text] : captions) {
        auto *row = new CSettingsPushButton(panel);
        row->init(text);
        row->setButtonCheckable(true);
        row->setProperty("GUID", id); // the same in every run and in every language
        row->adjustWidth(160); // all rows of a panel alike
        layout->addWidget(row);
    }
}
//! [rows]

} // namespace Snippets

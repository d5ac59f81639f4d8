// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QAction>

using namespace ZYX_zglv6;

namespace Snippets {

//! [register]
void registerCommands(QAction *save, QAction *grain, CSettingsPushButton *border, QObject *document)
{
    CActionManager &gate = Singleton<CActionManager>::instance();
    gate.addAction(save, document, "save"); // void save()
    gate.addBooleanAction(grain, document, "setGrain"); // void setGrain(bool isOn)
    gate.addSettingsPushButtonAction(border, document, "setBorder"); // void setBorder(bool isOn)
}
//! [register]

//! [busy]
void runBusy(const std::function<void()> &work)
{
    CActionManager &gate = Singleton<CActionManager>::instance();
    gate.blockActions();
    const auto unblock = qScopeGuard([&gate] { gate.unBlockActions(); });
    work(); // may run the event loop: the user's last command waits
}
//! [busy]

} // namespace Snippets

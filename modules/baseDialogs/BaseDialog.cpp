// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/BaseDialog.h"

namespace ZYX_zglv6 {

CBaseDialog::CBaseDialog(QWidget *parent, QFlags<Qt::WindowType> flags)
    : QDialog(parent, flags)
{
    setWindowFlags(windowFlags()
                   & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint | Qt::WindowContextHelpButtonHint));
}

CBaseDialog::~CBaseDialog() = default;

QString CBaseDialog::getObjectName()
{
    return objectName();
}

void CBaseDialog::sendNotification()
{
}

void CBaseDialog::showEvent(QShowEvent *event)
{
    if (!firstShow) {
        return;
    }
    firstShow = false;
    QDialog::showEvent(event);
}

bool CBaseDialog::canUseInAATSignalService() const
{
    return true;
}

} // namespace ZYX_zglv6

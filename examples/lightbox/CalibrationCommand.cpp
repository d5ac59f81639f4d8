// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCommand.h"

#include "CalibrationPanel.h"

bool isCalibrationOffered()
{
    return true;
}

CPhotoDialog *newCalibrationPanel(QWidget *parent)
{
    return new CCalibrationPanel(QDir::tempPath(), parent);
}

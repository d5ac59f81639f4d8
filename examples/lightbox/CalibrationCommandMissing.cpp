// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCommand.h"

#include "ReferenceTour.h"

bool isCalibrationOffered()
{
    return false;
}

CPhotoDialog *newCalibrationPanel(QWidget * /*parent*/)
{
    return nullptr;
}

QString tourCalibration(const QString & /*photo*/)
{
    return u"not in this build"_qs;
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

/*! A temporary folder that the environment can name, and the drive that an error box calls it by. */
struct ErrorBoxDrive
{
    const char *tag;
    const char *variable;
    QByteArray folder;
    QString drive;
};

/*! What to try; folders that must exist are made in \a home. */
QList<ErrorBoxDrive> errorBoxDrives(const QString &home);

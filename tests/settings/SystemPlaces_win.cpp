// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/SystemPlaces.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

namespace TestSupport {

std::unique_ptr<QSettings> openProductStore()
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\Zyx Labs\\Zyx Grainlab 6"),
                                       QSettings::NativeFormat);
}

std::unique_ptr<QSettings> openOrganizationStore()
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\ZyxLabs"), QSettings::NativeFormat);
}

std::unique_ptr<QSettings> openOrganizationStoreOfAllUsers()
{
    return nullptr; // HKEY_LOCAL_MACHINE is the machine's own, in the Sandbox too
}

QString productStorePath()
{
    return {};
}

bool keepDocumentsIn(const QString &folder)
{
    // The Sandbox's key stands for HKEY_CURRENT_USER in this process.
    QSettings folders(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\"
                                     "User Shell Folders"),
                      QSettings::NativeFormat);
    folders.setValue(QStringLiteral("Personal"), QDir::toNativeSeparators(folder));
    folders.sync();
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return documents == QDir(folder);
}

bool makePipe(const QString & /*path*/)
{
    return false;
}

} // namespace TestSupport

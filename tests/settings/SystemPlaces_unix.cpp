// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/SystemPlaces.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

#include <sys/stat.h>

namespace TestSupport {

std::unique_ptr<QSettings> openProductStore()
{
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Zyx Labs"),
                                       QStringLiteral("Zyx Grainlab 6"));
}

std::unique_ptr<QSettings> openOrganizationStore()
{
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("ZyxLabs"));
}

std::unique_ptr<QSettings> openOrganizationStoreOfAllUsers()
{
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::SystemScope, QStringLiteral("ZyxLabs"));
}

QString productStorePath()
{
    return openProductStore()->fileName();
}

bool keepDocumentsIn(const QString &folder)
{
    const QString configuration = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QFile userFolders(configuration + u"/user-dirs.dirs");
    if (!QDir().mkpath(configuration) || !userFolders.open(QIODevice::WriteOnly)) {
        return false;
    }
    userFolders.write("XDG_DOCUMENTS_DIR=\"" + QFile::encodeName(folder) + "\"\n");
    userFolders.close();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) == folder;
}

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

} // namespace TestSupport

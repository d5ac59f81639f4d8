// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/AdministratorActions.h"

#include "platform/Elevation.h"
#include "platform/Permissions.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <filesystem>

class AdministratorActions::Pimpl
{
};

AdministratorActions::AdministratorActions()
{
    ZyxPlatform::prepareElevation();
}

AdministratorActions::~AdministratorActions()
{
    ZyxPlatform::endElevation();
}

bool AdministratorActions::writeFile(const std::string &path, const std::string &permissions,
                                     const QByteArray &data) const
{
    const QString filePath = QString::fromStdString(path);
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) { // so that a full disk shows in the count below
        ZYX_LOG('E', QString(u"Cannot create file for writing: " + filePath));
        return false;
    }
    return setPathPermissions(path, permissions) && file.write(data) == data.size();
}

bool AdministratorActions::createFolder(const std::string &path, const std::string &permissions) const
{
    const ZyxPlatform::ElevatedCommand command
        = ZyxPlatform::createFolderElevated(QString::fromStdString(path), QString::fromStdString(permissions));
    if (!command.isStarted) {
        ZYX_LOG('E', QString(u"Cannot run executable with elevated privileges: " + command.arguments));
        return false;
    }
    return setPathPermissions(path, permissions);
}

bool AdministratorActions::setPathPermissions(const std::string &path, const std::string &permissions) const
{
    const int mode = std::stoi(permissions, nullptr, 8);
    const std::error_code error = ZyxPlatform::setPermissions(std::filesystem::path(path), mode);
    if (error) {
        ZYX_LOG('E',
                QString(u"Cannot set permissions to folder " + QString::fromStdString(path) + u" error: "
                        + QString::fromLocal8Bit(error.message().c_str())));
        return false;
    }
    return true;
}

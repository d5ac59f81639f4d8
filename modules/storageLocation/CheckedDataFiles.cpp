// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "storageLocation/storageLocation.h"

#include "utilsDll/dialogs/MessageBox.h" // against the order of the rooms: a path whose file is missing warns the user
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace ZYX_zglv6 {

namespace {

QString besideExecutable(QLatin1StringView file)
{
    return QDir::cleanPath(CStorageLocation::getExecutableDir() + QDir::separator() + file);
}

QString inResources(QLatin1StringView file)
{
    return QDir::cleanPath(CStorageLocation::getExecutableDir() + QDir::separator() + u"Resources" + QDir::separator()
                           + file);
}

/*! Not more than what its attributes say. */
bool isReadable(const QString &path)
{
    return QFileInfo(path).isReadable();
}

bool canBeOpened(const QString &path)
{
    return QFile(path).open(QIODevice::ReadOnly);
}

} // namespace

const QString &CStorageLocation::dopGPAPath(bool check)
{
    static const QString path = besideExecutable(QLatin1StringView("dop.gpa"));
    ZYX_LOG('D', u"Grain data path: "_qs + path);
    if (check && !isReadable(path)) {
        ZYX_DECLARE_FUNCTION_NAME(function);
        warnUser(function.data(), u"Error opening dop.gpa file at path: "_qs + path);
    }
    return path;
}

const QString &CStorageLocation::featureTogglePath(bool check)
{
    static const QString path = besideExecutable(QLatin1StringView("ZL5.lua"));
    ZYX_LOG('D', u"Feature Toggle file path: "_qs + path);
    if (check && !isReadable(path)) {
        ZYX_DECLARE_FUNCTION_NAME(function);
        warnUser(function.data(), u"Error opening ZL5.lua file at path: "_qs + path);
    }
    return path;
}

QString CStorageLocation::framePackPath(bool check)
{
    static const QString path = inResources(QLatin1StringView("Frames.lua"));
    ZYX_LOG('D', u"Frames data path: "_qs + path);
    if (check && !isReadable(path)) {
        ZYX_DECLARE_FUNCTION_NAME(function);
        warnUser(function.data(), u"Error opening Frames.lua file at path: "_qs + path);
    }
    return path;
}

QString CStorageLocation::texturesPackPath(bool check)
{
    static const QString path = inResources(QLatin1StringView("Textures.lua"));
    ZYX_LOG('D', u"Textures data path: "_qs + path);
    if (check && !isReadable(path)) {
        ZYX_DECLARE_FUNCTION_NAME(function);
        warnUser(function.data(), u"Error opening Textures.lua file at path: "_qs + path);
    }
    return path;
}

QString CStorageLocation::defectsPackPath()
{
    static const QString path = inResources(QLatin1StringView("Defects.lua"));
    ZYX_LOG('D', u"Defects data path: "_qs + path);
    if (!canBeOpened(path)) {
        ZYX_DECLARE_FUNCTION_NAME(function);
        warnUser(function.data(), u"Error opening Defects.lua file at path: "_qs + path);
    }
    return path;
}

void CStorageLocation::warnUser(const char *function, const QString &message)
{
    if (const ILoggerInterface *logger = loggerInstance()) {
        writeLogLine(*logger, 'E', function, message);
    }
    CMessageBox::messageHelper(nullptr, QObject::tr("Warning"), message, QMessageBox::Ok, QMessageBox::NoButton,
                               QMessageBox::Warning);
}

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/settings/ApplicationState.h"

#include "platform/Folders.h"
#include "platform/Registry.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QUuid>

namespace ZYX_zglv6 {

namespace {

constexpr QLatin1StringView switchedOff("0");
constexpr QLatin1StringView switchedOn("1");
constexpr QLatin1StringView defaultReseller("zyx");

// Counts as no reseller at all.
constexpr QLatin1StringView resellerPlaceholder("ZYX_RESELLER_ID_PLACEHOLDER");

bool isSwitchedOn(QLatin1StringView key)
{
    return getSettingsValue(key, switchedOn).toString() != switchedOff;
}

} // namespace

bool isFirstLaunch()
{
    return getSettingsValue(appLaunchedKey, QVariant()).isNull();
}

void setNotFirstLaunch()
{
    setSettingsValue(appLaunchedKey, 1);
}

bool arePresetsMigrated()
{
    return !getSettingsValue(presetsMigratedKey, QVariant()).isNull();
}

void setPresetsMigrated()
{
    setSettingsValue(presetsMigratedKey, 1);
}

QString getLastLaunchMode()
{
    return getSettingsValue(launchModeKey, QVariant()).toString();
}

void setLastLaunchMode(const QString &mode)
{
    setSettingsValue(launchModeKey, mode);
}

QString getUserID()
{
    const auto store = ZyxPlatform::openIdentityStore();
    QString identity = store->value(userIdKey).toString();
    if (identity.isEmpty()) {
        identity = QUuid::createUuid().toString(QUuid::WithoutBraces);
        store->setValue(userIdKey, identity);
    }
    return identity;
}

QString getResellerID()
{
    const QString id = getSettingsValue(resellerIdKey, defaultReseller).toString();
    return id == resellerPlaceholder ? QString(defaultReseller) : id;
}

void setResellerID(const QString &id)
{
    setSettingsValue(resellerIdKey, id);
}

QString getLogLevel()
{
    return getSettingsValue(loggerLevelKey, QStringLiteral("D")).toString();
}

bool isLoggerEnabled()
{
    return isSwitchedOn(loggerEnabledKey);
}

bool isStatisticSent()
{
    return isSwitchedOn(sendStatisticKey);
}

bool crashReportSendingAllowed()
{
    return isSwitchedOn(sendCrashReportKey);
}

void allowCrashReportSending(bool allowed)
{
    setSettingsValue(sendCrashReportKey, QString(allowed ? switchedOn : switchedOff));
}

QVariant getSettingsValue(const QString &key, const QVariant &defaultValue)
{
    return CSettings().value(key, defaultValue);
}

void setSettingsValue(const QString &key, const QVariant &value)
{
    CSettings().setValue(key, value);
}

QString recallFilePath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QDir::separator()
        + productDisplayName + QDir::separator() + u"recall";
    if (!QDir(folder).exists()) {
        ZyxPlatform::createFolder(QDir::toNativeSeparators(folder));
    }
    return folder + QDir::separator() + u"recall.bin";
}

} // namespace ZYX_zglv6

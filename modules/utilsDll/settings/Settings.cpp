// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/settings/Settings.h"

#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

namespace ZYX_zglv6 {

namespace {

constexpr QLatin1StringView preferencesFileOption("preferencesFile");

// A preferences file has some hundred bytes, and QSettings takes up to 25 times a file's size in memory.
constexpr qint64 largestIniFile = 1024LL * 1024;

/*! False, with a line in the log, for what can't be an ini file but would block or exhaust a reader. */
bool isWorthReading(const QString &iniFilePath)
{
    const QFileInfo file(iniFilePath);
    if (!file.exists() || (file.isFile() && file.size() <= largestIniFile)) {
        return true;
    }
    ZYX_LOG('E', u"Not read, as it is no file or larger than 1 MiB: " + iniFilePath);
    return false;
}

} // namespace

SettingsChangeNotificator CSettings::m_notificator;
QPointer<CTemporarySettings> CSettings::m_tempSettings;

CSettings::CSettings(QObject *parent, bool ignoreTemporarySettings)
    : m_settings(organizationName, productDisplayName, parent)
    , m_ignoreTemporarySettings(ignoreTemporarySettings)
{
    connectSlots();
}

CSettings::CSettings(const QString &fileName, QSettings::Format format, QObject *parent)
    : m_settings(fileName, format, parent)
    , m_ignoreTemporarySettings(false)
{
    connectSlots();
}

void CSettings::connectSlots()
{
    if (m_tempSettings) {
        connect(m_tempSettings, &QObject::destroyed, this, &CSettings::logWhenTempSettingsDeleted);
    }
}

void CSettings::logWhenTempSettingsDeleted()
{
    // The pointer is taken as it is: with a logger, an object that outlives its temporary settings breaks the promise
    // made in setTemporarySettings(), and ends here.
    ZYX_LOG('D', u"Temporary settings file is to be destoyed: " + m_tempSettings->tempSettingsPath());
    ZYX_LOG('D', "Persistent settings will be used");
}

void CSettings::setValue(const QString &key, const QVariant &value)
{
    if (usingTemporarySettings()) {
        m_tempSettings->setValue(localKey(key), value);
    } else {
        m_settings.setValue(key, value);
    }
    QMetaObject::invokeMethod(&m_notificator, "settingsValueChanged", Q_ARG(QString, key));
}

QVariant CSettings::value(const QString &key, const QVariant &defaultValue) const
{
    return usingTemporarySettings() ? m_tempSettings->value(localKey(key), defaultValue)
                                    : m_settings.value(key, defaultValue);
}

bool CSettings::contains(const QString &key) const
{
    return usingTemporarySettings() ? m_tempSettings->contains(localKey(key)) : m_settings.contains(key);
}

void CSettings::remove(const QString &key)
{
    if (usingTemporarySettings()) {
        m_tempSettings->remove(localKey(key));
        return;
    }
    m_settings.remove(key);
}

void CSettings::beginGroup(const QString &prefix)
{
    if (usingTemporarySettings()) {
        m_group = prefix; // replaces: redirected groups don't nest
        return;
    }
    m_settings.beginGroup(prefix);
}

void CSettings::endGroup()
{
    if (usingTemporarySettings()) {
        m_group.clear();
        return;
    }
    m_settings.endGroup();
}

QString CSettings::group() const
{
    return usingTemporarySettings() ? m_group : m_settings.group();
}

// Arrays of a redirected object lie at the top level of the ini file, whatever the group.

int CSettings::beginReadArray(const QString &prefix)
{
    return usingTemporarySettings() ? m_tempSettings->beginReadArray(prefix) : m_settings.beginReadArray(prefix);
}

void CSettings::beginWriteArray(const QString &prefix, int size)
{
    if (usingTemporarySettings()) {
        m_tempSettings->beginWriteArray(prefix, size);
        return;
    }
    m_settings.beginWriteArray(prefix, size);
}

void CSettings::endArray()
{
    if (usingTemporarySettings()) {
        m_tempSettings->endArray();
        return;
    }
    m_settings.endArray();
}

void CSettings::setArrayIndex(int index)
{
    if (usingTemporarySettings()) {
        m_tempSettings->setArrayIndex(index);
        return;
    }
    m_settings.setArrayIndex(index);
}

QSettings::Status CSettings::status() const
{
    return usingTemporarySettings() ? m_tempSettings->status() : m_settings.status();
}

void CSettings::sync()
{
    if (usingTemporarySettings()) {
        m_tempSettings->sync();
        return;
    }
    m_settings.sync();
}

QString CSettings::localKey(const QString &key) const
{
    return m_group.isEmpty() ? key : QStringLiteral("%1/%2").arg(m_group, key);
}

bool CSettings::usingTemporarySettings() const
{
    return !m_ignoreTemporarySettings && m_tempSettings;
}

void CSettings::setTemporarySettings(CTemporarySettings &settings)
{
    m_tempSettings = &settings;
    ZYX_LOG('D', u"Info: settings are now stored in file: " + settings.tempSettingsPath());
}

void CSettings::endTemporarySettings()
{
    m_tempSettings.clear();
    // Under the name of the function that a caller with a null pointer would have used.
    if (const ILoggerInterface *logger = loggerInstance()) {
        writeLogLine(*logger, 'D', "ZYX_zglv6::CSettings::setTemporarySettings",
                     "Info: settings are now stored in system");
    }
}

QObject *CSettings::getNotificator()
{
    return &m_notificator;
}

QVariant CSettings::getValueFromIniFile(const QString &iniFilePath, const QString &key, const QVariant &defaultValue)
{
    ASSERT(!iniFilePath.isEmpty());
    if (iniFilePath.isEmpty() || !isWorthReading(iniFilePath)) {
        return defaultValue;
    }
    const QSettings settings(iniFilePath, QSettings::IniFormat);
    return settings.value(key, defaultValue);
}

void CSettings::addPreferencesFileOption(QCommandLineParser &parser)
{
    parser.addOption(QCommandLineOption(preferencesFileOption, QString(), preferencesFileOption));
}

QString CSettings::preferencesFilePathCommandLineOption()
{
    return preferencesFileOption;
}

QString CSettings::getPreferencesFilePathFromCommandLine(const QCommandLineParser &parser, const QString &defaultPath)
{
    return parser.isSet(preferencesFileOption) ? parser.value(preferencesFileOption) : defaultPath;
}

} // namespace ZYX_zglv6

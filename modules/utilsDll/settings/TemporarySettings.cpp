// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/settings/TemporarySettings.h"

#include "utilsDll/frame/Assertions.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUuid>

namespace ZYX_zglv6 {

namespace {

constexpr QLatin1StringView fileName("zglv6.ini");

// Where nothing can be written or made: QSettings would make any missing folder that it can.
constexpr QLatin1StringView noFolder(":/no temporary folder");

constinit QString lastGeneratedPath; // of the object made last, whichever that is

} // namespace

CTemporarySettings::CTemporarySettings(const QDir &parentFolder)
{
    const QString folderTemplate
        = parentFolder.absolutePath() + QDir::separator() + QUuid::createUuid().toString(QUuid::WithBraces);
    m_folder = std::make_unique<QTemporaryDir>(folderTemplate);
    m_folder->setAutoRemove(true);
    // Goes on without a folder, so that the object is usable in every state; what is written then is lost.
    ASSERT_X_RETURN_BUT_GO_ON(m_folder->isValid(), "Temporary folder is not valid!");
    const QString folder = m_folder->isValid() ? m_folder->path() : QString(noFolder);
    lastGeneratedPath = QDir::toNativeSeparators(folder + QDir::separator() + fileName);
    m_store = std::make_unique<QSettings>(lastGeneratedPath, QSettings::IniFormat);
}

CTemporarySettings::~CTemporarySettings()
{
    m_store->sync(); // what an array left unwritten would make the folder anew when the store goes
    m_folder.reset();
    m_store.reset();
}

const QString &CTemporarySettings::tempSettingsPath() const
{
    return m_sharedPath.isEmpty() ? lastGeneratedPath : m_sharedPath;
}

void CTemporarySettings::setSharedSettingsPath(const QString &path)
{
    m_sharedPath = path;
}

QVariant CTemporarySettings::value(const QString &key, const QVariant &defaultValue) const
{
    return m_store->value(key, defaultValue);
}

bool CTemporarySettings::contains(const QString &key) const
{
    return m_store->contains(key);
}

void CTemporarySettings::setValue(const QString &key, const QVariant &value)
{
    m_store->setValue(key, value);
    m_store->sync();
}

void CTemporarySettings::remove(const QString &key)
{
    m_store->remove(key);
    m_store->sync();
}

void CTemporarySettings::clear()
{
    m_store->clear();
    m_store->sync();
}

int CTemporarySettings::beginReadArray(const QString &prefix)
{
    return m_store->beginReadArray(prefix);
}

void CTemporarySettings::beginWriteArray(const QString &prefix, int size)
{
    m_store->beginWriteArray(prefix, size);
}

void CTemporarySettings::endArray()
{
    m_store->endArray();
}

void CTemporarySettings::setArrayIndex(int index)
{
    m_store->setArrayIndex(index);
}

void CTemporarySettings::sync()
{
    m_store->sync();
}

QSettings::Status CTemporarySettings::status() const
{
    return m_store->status();
}

} // namespace ZYX_zglv6

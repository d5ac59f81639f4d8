// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

class QDir;
class QTemporaryDir;

namespace ZYX_zglv6 {

/*!
    A throw-away store: an ini file in a fresh folder of its own, both deleted with the object. Installed with
    CSettings::setTemporarySettings() it takes the settings of the whole process, and the user's own stay untouched.

    Every write and removal is on disk when it returns. If the folder can't be made, an assertion is reported, writes
    are lost and status() tells. Owned by the host; without locks.
*/
class UTILSDLL_EXPORT CTemporarySettings : public QObject
{
    Q_OBJECT

public:
    /*! Makes a folder with a unique name in \a parentFolder. */
    explicit CTemporarySettings(const QDir &parentFolder);
    ~CTemporarySettings() override;

    /*!
        Path of the ini file: the shared path if one is set, else the file of the object made last in this process,
        which with several objects need not be this one's.
    */
    const QString &tempSettingsPath() const;

    /*! Changes what tempSettingsPath() tells, and nothing else: the file that is written stays. */
    void setSharedSettingsPath(const QString &path);

    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    bool contains(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);
    void remove(const QString &key);
    void clear();

    int beginReadArray(const QString &prefix);
    void beginWriteArray(const QString &prefix, int size = -1);
    void endArray();
    void setArrayIndex(int index);
    void sync();
    QSettings::Status status() const;

private:
    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_sharedPath;
};

} // namespace ZYX_zglv6

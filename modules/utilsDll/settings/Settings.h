// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QCommandLineParser;

namespace ZYX_zglv6 {

/*! Tells of every value written through CSettings; see CSettings::getNotificator(). */
class UTILSDLL_EXPORT SettingsChangeNotificator : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /*! \a key as the writer gave it, without the group it was in. */
    void settingsValueChanged(const QString &key);
};

/*!
    The one front to persistent settings: a short-lived object on the stack for each access.

    It works on the system store, or on the file it was made with. While a CTemporarySettings is installed, every
    access goes to that one's ini file instead; the test is made anew in each call, so an object that is alive when
    temporary settings come or go changes its store on the spot, without the group or array it had open; that is in
    force again when the store comes back.

    On redirected objects beginGroup() replaces the group instead of nesting, and the group counts for keys but not
    for arrays. The class-level state has no lock: while temporary settings are installed, use this class from one
    thread only. Nothing throws but getStringFromPreferencesFile(); status() tells of failures.
*/
class UTILSDLL_EXPORT CSettings : public QObject
{
    Q_OBJECT

public:
    /*!
        The system store. \a parent becomes the parent of the QSettings inside, not of this object, and must outlive it.
        With \a ignoreTemporarySettings this object is never redirected.
    */
    explicit CSettings(QObject *parent = nullptr, bool ignoreTemporarySettings = false);

    /*! The file \a fileName in the given format; redirected all the same while temporary settings are installed. */
    CSettings(const QString &fileName, QSettings::Format format, QObject *parent = nullptr);

    CSettings(QObject *parent, QSettings::Format format) = delete; // a forgotten file name

    /*! Writes, and then tells the listeners of the notifier. */
    void setValue(const QString &key, const QVariant &value);
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    bool contains(const QString &key) const;
    void remove(const QString &key);

    void beginGroup(const QString &prefix);
    void endGroup();
    QString group() const;

    int beginReadArray(const QString &prefix);
    void beginWriteArray(const QString &prefix, int size = -1);
    void endArray();
    void setArrayIndex(int index);

    QSettings::Status status() const;
    void sync();

    /*! \a key with the group of a redirected object in front of it. */
    QString localKey(const QString &key) const;

    /*! True if the next access goes to the temporary settings. */
    bool usingTemporarySettings() const;

    /*!
        Redirects the settings of the process to \a settings until that object dies; it stays the caller's. Nothing is
        copied. A CSettings made while the redirect is on must not outlive \a settings.
    */
    static void setTemporarySettings(CTemporarySettings &settings);

    /*! Ends the redirect while the temporary settings live on. What they hold is not copied. */
    static void endTemporarySettings();

    /*! The process's one SettingsChangeNotificator, to connect to. It lives on the thread that loaded the library. */
    static QObject *getNotificator();

    /*!
        One value of an ini file, such as the preferences file. An empty path reports an assertion and gives the
        default; so does, with a line in the log, what is no regular file or larger than 1 MiB.
    */
    static QVariant getValueFromIniFile(const QString &iniFilePath, const QString &key, const QVariant &defaultValue);

    /*!
        One text of the preferences file; a missing or empty value gives \a defaultValue.
        Throws std::runtime_error before CStorageLocation knows the file.
    */
    static QString getStringFromPreferencesFile(const QString &key, const QString &defaultValue);

    static void addPreferencesFileOption(QCommandLineParser &parser);
    static QString preferencesFilePathCommandLineOption();

    /*! The path given on the command line, or \a defaultPath. \a parser has parsed with addPreferencesFileOption(). */
    static QString getPreferencesFilePathFromCommandLine(const QCommandLineParser &parser, const QString &defaultPath);

    static SettingsChangeNotificator m_notificator;
    static QPointer<CTemporarySettings> m_tempSettings; // not owned

private Q_SLOTS:
    void logWhenTempSettingsDeleted();

private:
    void connectSlots();

    QSettings m_settings;
    QString m_group;
    bool m_ignoreTemporarySettings;
};

} // namespace ZYX_zglv6

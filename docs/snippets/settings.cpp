// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QCommandLineParser>

using namespace ZYX_zglv6;

namespace Snippets {

//! [access]
void rememberZoom(int percent)
{
    CSettings().setValue(u"lightbox/zoom"_qs, percent);
}

int lastZoom()
{
    return CSettings().value(u"lightbox/zoom"_qs, 100).toInt();
}
//! [access]

//! [listen]
void restoreZoomOnChange(QObject *view, const std::function<void(int)> &applyZoom)
{
    const auto *notifier = qobject_cast<SettingsChangeNotificator *>(CSettings::getNotificator());
    QObject::connect(notifier, &SettingsChangeNotificator::settingsValueChanged, view, [applyZoom](const QString &key) {
        if (key == u"lightbox/zoom") {
            applyZoom(lastZoom());
        }
    });
}
//! [listen]

//! [temporary]
void runWithThrowAwaySettings(const std::function<void()> &work)
{
    CTemporarySettings throwAway(QDir::temp());
    CSettings::setTemporarySettings(throwAway);
    work(); // any CSettings made in here must be gone when it returns
}
//! [temporary]

//! [groups]
QStringList redirectedKeys(const QDir &folder)
{
    CTemporarySettings throwAway(folder);
    CSettings::setTemporarySettings(throwAway);

    CSettings settings;
    settings.beginGroup(u"film"_qs);
    settings.beginGroup(u"grain"_qs);
    settings.setValue(u"size"_qs, 3); // "grain/size" here, "film/grain/size" in the system store

    settings.beginWriteArray(u"curves"_qs); // "curves" here, "film/grain/curves" in the system store
    settings.setArrayIndex(0);
    settings.setValue(u"slope"_qs, 7); // "curves/1/grain/slope" here, "film/grain/curves/1/slope" in the system store
    settings.endArray();
    return QSettings(throwAway.tempSettingsPath(), QSettings::IniFormat).allKeys();
}
//! [groups]

//! [preferences file]
QString preferencesFile(const QStringList &arguments)
{
    QCommandLineParser parser;
    CSettings::addPreferencesFileOption(parser);
    parser.process(arguments);
    return CSettings::getPreferencesFilePathFromCommandLine(parser, u"Preferences.ini"_qs);
}
//! [preferences file]

//! [first launch]
QString greeting()
{
    if (!isFirstLaunch()) {
        return u"Welcome back"_qs;
    }
    setNotFirstLaunch();
    return u"Welcome"_qs;
}
//! [first launch]

} // namespace Snippets

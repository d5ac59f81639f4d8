// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/Look.h"

#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QTextStream>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

void chooseLanguage(const QString &abbreviation)
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    languages.loadLanguages();
    const QList<QStandardItem *> found
        = languages.model()->findItems(abbreviation, Qt::MatchExactly, languageAbbreviationColumn);
    if (found.isEmpty()) {
        QTextStream(stderr) << QCoreApplication::applicationName() << ": there is no language " << abbreviation
                            << Qt::endl;
        return;
    }
    languages.changeLanguage(found.front()->row());
}

/*! Of the loaded language's row; empty if none could be loaded. */
QString loadedLanguageText(int column)
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    const int row = languages.getLanguageIndexFromId(int(languages.loadedLanguageID()));
    return languages.model()->index(row, column).data().toString();
}

} // namespace

void putOnLook(const QString &language)
{
    addApplicationFonts();
    if (!language.isEmpty()) {
        chooseLanguage(language);
    }
    CLanguageManager::getInstance().loadLanguageForApp();
    setupApplicationIcon();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

QString loadedLanguageName()
{
    const QString name = loadedLanguageText(languageNameColumn);
    return name.isEmpty() ? u"the source's language"_qs : name;
}

QString loadedLanguageAbbreviation()
{
    return loadedLanguageText(languageAbbreviationColumn);
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QStandardItemModel>

class QTranslator;

namespace ZYX_zglv6 {

class CLanguageManager;

} // namespace ZYX_zglv6

extern template class UTILSDLL_EXPORT_TEMPLATE Singleton<ZYX_zglv6::CLanguageManager>;

namespace ZYX_zglv6 {

/*!
    Decides which language the program speaks; one for the process.

    The languages are the catalogues in ":/translations" that tell a "language name" and a "language number" in the
    context "CLanguageManager": to add one takes a file and no code. A number is a Windows language identifier, such as
    1031. The user's choice is stored in the settings and takes effect at the next start.

    The choice is read from the settings at each call. The languages are found by loadLanguages(); before that what
    asks for a row answers -1 or an empty text. Main thread only, except loadedLanguageID() once the program
    runs.
*/
class UTILSDLL_EXPORT CLanguageManager : public QObject, public Singleton<CLanguageManager>
{
    Q_OBJECT

public:
    /*! The same as Singleton<CLanguageManager>::instance(). */
    static CLanguageManager &getInstance();

    ~CLanguageManager() override;

    /*! Fills the model; once for the process, also if there is nothing to find. Skips what is no catalogue. */
    void loadLanguages();

    /*!
        Installs the catalogue of the chosen language, and Qt's own if there is one, for good, and makes its number and
        date forms the default. A number that no catalogue has leaves the texts of the source. Call it once, when the
        QApplication exists and no window does.
    */
    void loadLanguageForApp();

    /*! One row a language; columns: name, number as text, path of the catalogue, abbreviation ("zh_CN"). Never null. */
    QStandardItemModel *model();

    int langCount();

    /*! The row of the chosen language, or -1. */
    int currentLanguageIndex() const;

    /*! The row of the language number \a id, or -1. */
    int getLanguageIndexFromId(int id) const;

    /*! The abbreviation of the chosen language as resources use it, "zh_CN"; empty if it has no row. */
    QString currentLanguageAbbrv() const;

    /*! The abbreviation of the chosen language as web addresses use it, "zh-CN"; "en" for those that have none. */
    QString settingsAbbrv();

    /*! The language that the program runs in; 0xFFFFFFFF if none was loaded. */
    unsigned int loadedLanguageID() const;

public Q_SLOTS:
    /*! Chooses row \a index for the next start. False, and nothing told, if that is the choice already. */
    bool changeLanguage(int index);

    /*! Chooses English for the next start. */
    void resetToEnglish();

Q_SIGNALS:
    /*! Another language was chosen. */
    void languageChanged();

private:
    friend class ::Singleton<CLanguageManager>;

    CLanguageManager();

    unsigned int currentLanguageNumber() const;
    void setCurrentLanguageNumber(unsigned int number);
    void createLanguageModel(QList<QString> names, QList<QString> numbers, QList<QString> files,
                             QList<QString> abbreviations);
    bool isModelFilled() const;
    void setColumn(int column, const QList<QString> &texts);
    QString textAt(int row, int column) const;
    void installCatalogue(const QString &path);

    QStandardItemModel m_model;
    QTranslator *m_translator = nullptr; // the last one installed; the application owns it
    unsigned int m_loadedLanguage = 0xFFFFFFFF;
};

} // namespace ZYX_zglv6

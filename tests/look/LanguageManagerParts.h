// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/LanguageManager.h"

class QTranslator;

/*! What the class keeps to itself: an explicit instantiation may name private members. */
namespace LanguageManagerParts {

using ZYX_zglv6::CLanguageManager;

template <QTranslator *CLanguageManager::*field>
struct Translator
{
    friend QTranslator *translatorOf(const CLanguageManager &manager)
    {
        return manager.*field;
    }
};

template <unsigned int CLanguageManager::*field>
struct LoadedLanguage
{
    friend void setLoadedLanguage(CLanguageManager &manager, unsigned int number)
    {
        manager.*field = number;
    }
};

template <unsigned int (CLanguageManager::*operation)() const>
struct CurrentNumber
{
    friend unsigned int currentNumberOf(const CLanguageManager &manager)
    {
        return (manager.*operation)();
    }
};

template <void (CLanguageManager::*operation)(QList<QString>, QList<QString>, QList<QString>, QList<QString>)>
struct ModelMaker
{
    friend void createModel(CLanguageManager &manager, const QList<QString> &names, const QList<QString> &numbers,
                            const QList<QString> &files, const QList<QString> &abbreviations)
    {
        (manager.*operation)(names, numbers, files, abbreviations);
    }
};

template struct Translator<&CLanguageManager::m_translator>;
template struct LoadedLanguage<&CLanguageManager::m_loadedLanguage>;
template struct CurrentNumber<&CLanguageManager::currentLanguageNumber>;
template struct ModelMaker<&CLanguageManager::createLanguageModel>;

QTranslator *translatorOf(const CLanguageManager &manager);
void setLoadedLanguage(CLanguageManager &manager, unsigned int number);
unsigned int currentNumberOf(const CLanguageManager &manager);
void createModel(CLanguageManager &manager, const QList<QString> &names, const QList<QString> &numbers,
                 const QList<QString> &files, const QList<QString> &abbreviations);

} // namespace LanguageManagerParts

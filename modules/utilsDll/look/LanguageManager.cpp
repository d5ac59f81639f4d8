// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/LanguageManager.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION Singleton<ZYX_zglv6::CLanguageManager>;

namespace ZYX_zglv6 {

namespace {

constexpr unsigned int english = 1033;
constexpr QLatin1StringView cataloguesFolder(":/translations/");
constexpr QLatin1StringView cataloguePrefix("zyx_");

enum Column { NameColumn, NumberColumn, FileColumn, AbbreviationColumn, ColumnCount };

/*! "zh_CN" of "zyx_zh_CN.qm". */
QString abbreviationOf(const QString &fileName)
{
    const qsizetype prefix = fileName.lastIndexOf(cataloguePrefix);
    const qsizetype begin = prefix < 0 ? 0 : prefix + cataloguePrefix.size();
    return fileName.sliced(begin, fileName.lastIndexOf(u'.') - begin);
}

} // namespace

CLanguageManager::CLanguageManager() = default;
CLanguageManager::~CLanguageManager() = default;

CLanguageManager &CLanguageManager::getInstance()
{
    return Singleton<CLanguageManager>::instance();
}

void CLanguageManager::loadLanguages()
{
    if (isModelFilled()) {
        return;
    }
    QList<QString> names;
    QList<QString> numbers;
    QList<QString> files;
    QList<QString> abbreviations;
    const QStringList fileNames = QDir(cataloguesFolder).entryList({u"*.qm"_qs}, QDir::Files, QDir::NoSort);
    for (const QString &fileName : fileNames) {
        const QString path = cataloguesFolder + fileName;
        QTranslator catalogue;
        // What can't be loaded answers nothing, as do Qt's own catalogues.
        static_cast<void>(catalogue.load(path));
        const QString name = catalogue.translate("CLanguageManager", "language name", "", -1);
        const QString number = catalogue.translate("CLanguageManager", "language number", "", -1);
        if (!name.isEmpty() && !number.isEmpty()) {
            names.append(name);
            numbers.append(number);
            files.append(path);
            abbreviations.append(abbreviationOf(fileName));
        }
    }
    createLanguageModel(names, numbers, files, abbreviations);
}

// NOLINTBEGIN(performance-unnecessary-value-param): the interface takes values
void CLanguageManager::createLanguageModel(QList<QString> names, QList<QString> numbers, QList<QString> files,
                                           QList<QString> abbreviations)
// NOLINTEND(performance-unnecessary-value-param)
{
    if (isModelFilled() || names.size() != numbers.size() || names.size() != files.size()) {
        return;
    }
    m_model.setColumnCount(ColumnCount);
    m_model.setRowCount(int(names.size()));
    setColumn(NameColumn, names);
    setColumn(NumberColumn, numbers);
    setColumn(FileColumn, files);
    setColumn(AbbreviationColumn, abbreviations);
}

bool CLanguageManager::isModelFilled() const
{
    return m_model.rowCount() > 0 || m_model.columnCount() > 0;
}

void CLanguageManager::setColumn(int column, const QList<QString> &texts)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        m_model.setData(m_model.index(row, column), texts.value(row), Qt::DisplayRole);
    }
}

QString CLanguageManager::textAt(int row, int column) const
{
    return m_model.index(row, column).data(Qt::DisplayRole).toString();
}

void CLanguageManager::loadLanguageForApp()
{
    loadLanguages();
    const unsigned int number = currentLanguageNumber();
    const int row = getLanguageIndexFromId(int(number));
    if (row < 0) {
        return;
    }
    const QString abbreviation = textAt(row, AbbreviationColumn);
    installCatalogue(textAt(row, FileColumn));
    const QString qtCatalogue = cataloguesFolder + u"qt_%1.qm"_qs.arg(abbreviation);
    if (QFile::exists(qtCatalogue)) {
        installCatalogue(qtCatalogue);
    }
    m_loadedLanguage = number;
    QLocale::setDefault(QLocale(abbreviation));
}

void CLanguageManager::installCatalogue(const QString &path)
{
    m_translator = new QTranslator(QCoreApplication::instance());
    static_cast<void>(m_translator->load(path)); // without its catalogue it translates nothing
    QCoreApplication::installTranslator(m_translator);
}

QStandardItemModel *CLanguageManager::model()
{
    return &m_model;
}

int CLanguageManager::langCount()
{
    return m_model.rowCount();
}

int CLanguageManager::currentLanguageIndex() const
{
    return getLanguageIndexFromId(int(currentLanguageNumber()));
}

int CLanguageManager::getLanguageIndexFromId(int id) const
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (textAt(row, NumberColumn).toInt() == id) {
            return row;
        }
    }
    return -1;
}

QString CLanguageManager::currentLanguageAbbrv() const
{
    return textAt(currentLanguageIndex(), AbbreviationColumn); // empty for row -1
}

QString CLanguageManager::settingsAbbrv()
{
    switch (currentLanguageNumber()) {
    case 1031:
        return u"de"_qs;
    case 1036:
        return u"fr"_qs;
    case 1041:
        return u"ja"_qs;
    case 2052:
        return u"zh-CN"_qs;
    default:
        return u"en"_qs;
    }
}

unsigned int CLanguageManager::loadedLanguageID() const
{
    return m_loadedLanguage;
}

bool CLanguageManager::changeLanguage(int index)
{
    // A row beyond the model counts as number 0: stored, it gives the texts of the source at the next start.
    const auto number = unsigned(textAt(index, NumberColumn).toInt());
    if (number == currentLanguageNumber()) {
        return false;
    }
    setCurrentLanguageNumber(number);
    Q_EMIT languageChanged();
    return true;
}

void CLanguageManager::resetToEnglish()
{
    if (currentLanguageNumber() == english) {
        return;
    }
    setCurrentLanguageNumber(english);
    Q_EMIT languageChanged();
}

unsigned int CLanguageManager::currentLanguageNumber() const
{
    bool isNumber = false;
    const unsigned int number = CSettings().value(languageKey, english).toUInt(&isNumber);
    return isNumber ? number : english;
}

void CLanguageManager::setCurrentLanguageNumber(unsigned int number)
{
    CSettings().setValue(languageKey, number);
}

} // namespace ZYX_zglv6

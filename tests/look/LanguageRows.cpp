// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/LanguageRows.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QResource>
#include <QtCore/QTranslator>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

namespace LanguageRows {

CLanguageManager &manager()
{
    return CLanguageManager::getInstance();
}

QString cell(int row, int column)
{
    return manager().model()->index(row, column).data(Qt::DisplayRole).toString();
}

QStringList column(int column)
{
    QStringList cells;
    for (int row = 0; row < manager().langCount(); ++row) {
        cells.append(cell(row, column));
    }
    return cells;
}

void choose(const QVariant &value)
{
    CSettings().setValue(languageKey, value);
}

QVariant stored()
{
    return CSettings().value(languageKey);
}

QStringList installedFiles()
{
    QStringList files;
    for (const QTranslator *translator : qApp->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly)) {
        files.append(translator->filePath());
    }
    return files;
}

void addLanguageRows()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("abbreviation");
    QTest::addColumn<QString>("webAbbreviation");
    QTest::addColumn<QString>("qtFile");

    const auto add = [](const char *tag, int number, const QString &name, const QString &abbreviation,
                        const QString &webAbbreviation, const QString &qtFile) {
        QTest::newRow(tag) << number << name << u":/translations/zyx_"_qs + abbreviation + u".qm" << abbreviation
                           << webAbbreviation << qtFile;
    };
    add("English", 1033, u"English"_qs, u"en"_qs, u"en"_qs, QString());
    add("German", 1031, u"Deutsch"_qs, u"de"_qs, u"de"_qs, u":/translations/qt_de.qm"_qs);
    add("French", 1036, u"Fran\u00e7ais"_qs, u"fr"_qs, u"fr"_qs, u":/translations/qt_fr.qm"_qs);
    add("Japanese", 1041, u"\u65e5\u672c\u8a9e"_qs, u"ja"_qs, u"ja"_qs, u":/translations/qt_ja.qm"_qs);
    add("Chinese", 2052, u"\u7b80\u4f53\u4e2d\u6587"_qs, u"zh_CN"_qs, u"zh-CN"_qs, u":/translations/qt_zh_CN.qm"_qs);
}

MoreCatalogues::MoreCatalogues()
    : m_isRegistered(QResource::registerResource(QString::fromUtf8(CATALOGUES)))
{
}

MoreCatalogues::~MoreCatalogues()
{
    QResource::unregisterResource(QString::fromUtf8(CATALOGUES));
}

bool MoreCatalogues::isRegistered() const
{
    return m_isRegistered;
}

} // namespace LanguageRows

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/LanguageManager.h"

#include <QtCore/QStringList>
#include <QtCore/QVariant>

/*! What the tests of the language manager share. */
namespace LanguageRows {

ZYX_zglv6::CLanguageManager &manager();

/*! Texts of the model. */
QString cell(int row, int column);
QStringList column(int column);

/*! Writes and reads the choice in the settings, past the manager. */
void choose(const QVariant &value);
QVariant stored();

/*! Files of the catalogues that the application owns, the oldest first. */
QStringList installedFiles();

/*! Data rows for the five languages of the library, with the columns number, name, file, abbreviation,
    webAbbreviation and qtFile, which is empty if there is none. */
void addLanguageRows();

/*! Catalogues beside those of the library, in the same folder of resources, while it lives. */
class MoreCatalogues
{
public:
    MoreCatalogues();
    ~MoreCatalogues();

    MoreCatalogues(const MoreCatalogues &) = delete;
    MoreCatalogues &operator=(const MoreCatalogues &) = delete;

    bool isRegistered() const;

private:
    bool m_isRegistered;
};

} // namespace LanguageRows

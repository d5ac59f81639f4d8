// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <optional>

inline constexpr QLatin1StringView sheetKind("sheet-"); // before a sheet's name

/*! What a picture shows. Its file is "<language>-<ratio>-<ltr|rtl>-<exhibit>.png". */
struct PictureName
{
    QString language; // abbreviation, such as "zh_CN"
    QString ratio; // pixels to a unit, such as "1.5"
    QString direction; // "ltr" or "rtl"
    QString exhibit;

    QString fileName() const;
};

/*!
    The picture of that file; none if it is of no such form. That of a style sheet's page, which has no ratio and no
    direction in its name, has ratio 1, left to right, and the exhibit "sheet-" and the sheet's name.
*/
std::optional<PictureName> pictureNameOf(const QString &fileName);

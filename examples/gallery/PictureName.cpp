// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PictureName.h"

#include <QtCore/QRegularExpression>

QString PictureName::fileName() const
{
    return language + u'-' + ratio + u'-' + direction + u'-' + exhibit + u".png";
}

std::optional<PictureName> pictureNameOf(const QString &fileName)
{
    static const QRegularExpression sheetForm(u"^([a-z]{2}(?:_[A-Z]{2})?)-[0-9]{2}-([A-Za-z_-]+)\\.png$"_qs);
    static const QRegularExpression form(
        u"^([a-z]{2}(?:_[A-Z]{2})?)-([1-9][0-9]*(?:\\.[0-9]+)?)-(ltr|rtl)-([a-z]+-[a-z0-9-]+)\\.png$"_qs);
    if (const QRegularExpressionMatch match = sheetForm.match(fileName); match.hasMatch()) {
        return PictureName{match.captured(1), u"1"_qs, u"ltr"_qs, sheetKind + match.captured(2)};
    }
    const QRegularExpressionMatch match = form.match(fileName);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    return PictureName{match.captured(1), match.captured(2), match.captured(3), match.captured(4)};
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "LanguageTexts.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>

class QXmlStreamReader;

/*!
    Reads the XML file \a path, whose outermost element is \a root: \a readChild is called at the start of each element
    in it and reads to the end of that. What it can't use, it reports with raiseError(). The answer is empty, or says
    what is wrong in which line; what was read until then is worth nothing.
*/
[[nodiscard]] QString readXmlFile(const QString &path, QLatin1StringView root,
                                  const std::function<void(QXmlStreamReader &)> &readChild);

/*! That attribute of the current element; an error of the reader if it is missing or empty. */
QString requiredAttribute(QXmlStreamReader &xml, QLatin1StringView name);

/*! The attributes "name_XX" of the current element, by language. */
LanguageTexts namesOf(const QXmlStreamReader &xml);

/*! The text of the current element, which is Base64 of UTF-8; an error of the reader if it is neither. */
QString readBase64Text(QXmlStreamReader &xml);

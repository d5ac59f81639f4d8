// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

struct SourceText
{
    QString context; // empty where only the class tells: a bare tr()
    QString text;

    bool operator==(const SourceText &other) const = default;
};

/*!
    The literals in the C++ source \a code that go through tr(), translate() and Qt's macros that mark texts, in their
    order. A text that is put together of anything but plain literals is left out.
*/
QList<SourceText> sourceTextsIn(const QString &code);

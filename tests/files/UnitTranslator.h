// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <QtCore/QTranslator>

/*! Translates the units to "[unit]", and nothing but what has the context of QObject; installed while it lives. */
class UnitTranslator : public QTranslator
{
public:
    UnitTranslator()
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override
    {
        return false;
    }

    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*count*/) const override
    {
        return QByteArrayView(context) == "QObject" ? u"[%1]"_qs.arg(QString::fromUtf8(sourceText)) : QString();
    }
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"

namespace TestSupport {

namespace {

QStringList &collectedTexts()
{
    static QStringList texts;
    return texts;
}

void collect(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
{
    if (text.startsWith(u"ASSERT")) {
        collectedTexts().append(text);
    }
}

} // namespace

AssertionReports::AssertionReports()
    : m_previousHandler(qInstallMessageHandler(collect))
{
    collectedTexts().clear();
}

AssertionReports::~AssertionReports()
{
    qInstallMessageHandler(m_previousHandler);
}

QStringList AssertionReports::texts() const
{
    return collectedTexts();
}

} // namespace TestSupport

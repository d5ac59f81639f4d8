// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "CollectorProcess.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace CrashCollectorTest {

/*! The namespace of the service's messages, with a host as a product would have it. */
QString serviceUri();

/*! What a sender says. */
struct ReportTexts
{
    QString product = u"Zyx Grainlab 6"_qs;
    QString version = u"6.4.0.314"_qs;
    QString platform = u"Win"_qs;
};

/*! What the service answers. */
struct Verdict
{
    int status = 0;
    QString word; // "ReportCrashResult"
    QString identifier;
    QString fault; // "Client: text"; empty without a fault
};

/*! A request with \a data as the last argument. */
QByteArray reportRequest(const QString &data, const ReportTexts &texts = {});

/*! The same with other arguments: the content of the method's element, in XML. */
QByteArray requestWithArguments(const QString &arguments);

/*! Posts a document as the service expects it. */
Verdict postDocument(const CollectorProcess &collector, const QByteArray &document);

/*! The same with another header "SOAPAction"; null leaves it out. */
Verdict postDocument(const CollectorProcess &collector, const QByteArray &document, const QByteArray &action);

Verdict sendReport(const CollectorProcess &collector, const QByteArray &archive, const ReportTexts &texts = {});

/*! Reads the document of an answer. */
Verdict verdictIn(int status, const QByteArray &document);

/*! The value of the header "SOAPAction", and the path of the service. */
QByteArray reportAction();
QString reportPath();

} // namespace CrashCollectorTest

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ReportStore.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ZYX_zglv6 {
class QtSoapMessage;
class QtSoapType;
} // namespace ZYX_zglv6

/*! A document for the sender of a request, and the HTTP status that it comes under. */
struct ServiceAnswer
{
    int status = 0;
    QByteArray document;
};

/*!
    The operation "ReportCrash": reads a request, checks its archive, has it stored and says what came of it.

    An answer under the status 200 has a word for that, "NoError" if the report is kept and else the reason; a request
    that is none of this operation, or not a complete one, is answered with a fault under the status 500. One thread at
    a time, as SOAP messages have it.
*/
class CReportService
{
public:
    CReportService(CReportStore &store, qint64 archiveSizeLimit);

    /*! \a action is the value of the header "SOAPAction". */
    ServiceAnswer answer(const QByteArray &request, const QByteArray &action);

    /*! For an archive, or a whole request, of more than the limit: a fault under the status 413. */
    ServiceAnswer tooLarge() const;

    /*! For what went wrong here and not at the sender. */
    static ServiceAnswer serverFault();

private:
    ServiceAnswer carryOut(const ZYX_zglv6::QtSoapType &method);
    QString store(const ReportOrigin &origin, const QByteArray &archive, QString &identifier);

    CReportStore &m_store;
    qint64 m_archiveSizeLimit;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ReportService.h"
#include "ReportStore.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

/*! What the server's requests are about, all in one place and on one thread: the one that made the object. */
class CCollector final : public QObject
{
    Q_OBJECT

public:
    /*! \a store is open, and lives as long as the object. */
    CCollector(CReportStore &store, qint64 archiveSizeLimit);

    ServiceAnswer receive(const QByteArray &request, const QByteArray &action);
    ServiceAnswer refuseAsTooLarge() const;

    /*! The page that lists the reports, in HTML. */
    QByteArray page() const;

    /*! The archive under \a identifier, which may be any text. */
    std::optional<QByteArray> archive(const QString &identifier) const;

private:
    CReportStore &m_store;
    CReportService m_service;
};

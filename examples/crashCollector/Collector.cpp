// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Collector.h"

#include "ReportsPage.h"

CCollector::CCollector(CReportStore &store, qint64 archiveSizeLimit)
    : m_store(store)
    , m_service(store, archiveSizeLimit)
{
}

ServiceAnswer CCollector::receive(const QByteArray &request, const QByteArray &action)
{
    return m_service.answer(request, action);
}

ServiceAnswer CCollector::refuseAsTooLarge() const
{
    return m_service.tooLarge();
}

QByteArray CCollector::page() const
{
    constexpr int shown = 200; // a page that a browser shows at once
    return reportsPage(m_store.newest(shown), m_store.count());
}

std::optional<QByteArray> CCollector::archive(const QString &identifier) const
{
    return m_store.archive(identifier);
}

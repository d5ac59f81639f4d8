// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ReportStore.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

/*! The page that lists \a reports, which are the newest of \a count, in HTML. It refers to /style.css and /icon.svg. */
QByteArray reportsPage(const QList<StoredReport> &reports, qint64 count);

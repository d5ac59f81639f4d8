// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

namespace TestSupport {

/*! Collects the failed assertions that are reported on the Qt debug channel while it lives. One at a time. */
class AssertionReports
{
public:
    AssertionReports();
    ~AssertionReports();

    AssertionReports(const AssertionReports &) = delete;
    AssertionReports &operator=(const AssertionReports &) = delete;

    QStringList texts() const;

private:
    QtMessageHandler m_previousHandler;
};

} // namespace TestSupport

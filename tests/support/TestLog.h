// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TestSupport {

/*!
    The process's file logger, writing into \a dataDirectory. One for a process: use it in a function that starts with
    RUN_IN_FRESH_PROCESS(). Sets the data directory of CStorageLocation.
*/
class TestLog
{
public:
    explicit TestLog(const QString &dataDirectory);

    QString path() const;

    /*! The records written since the object was made, each "LEVEL message", such as "DEBUG f: text". */
    QStringList records() const;

private:
    QStringList allRecords() const;

    QString m_path;
    qsizetype m_countAtStart;
};

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveLibzip.h"

namespace TestSupport {

bool hasLibzip()
{
    return false;
}

QList<LibzipEntry> readByLibzip(const QString & /*archive*/, const QByteArray & /*password*/)
{
    return {};
}

bool packByLibzip(const QString & /*archive*/, const Files & /*files*/, bool /*isStored*/)
{
    return false;
}

} // namespace TestSupport

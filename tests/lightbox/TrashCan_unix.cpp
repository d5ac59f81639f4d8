// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TrashCan.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

namespace {

QString path()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Trash";
}

} // namespace

std::optional<QStringList> TrashCan::names()
{
    return QDir(path() + u"/files").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void TrashCan::empty()
{
    QDir(path()).removeRecursively();
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ModulePath.h"

#include <QtCore/QFile>

#include <link.h>

namespace ZyxPlatform {

namespace {

struct Search
{
    QByteArray fileName;
    QByteArray path;
};

int compareModule(dl_phdr_info *module, std::size_t /*size*/, void *data)
{
    auto *search = static_cast<Search *>(data);
    const QByteArray path(module->dlpi_name); // empty for the program
    if (path.mid(path.lastIndexOf('/') + 1) != search->fileName) {
        return 0;
    }
    search->path = path;
    return 1; // ends the walk
}

} // namespace

QString pathOfModuleOrProgram(const QString &name)
{
    Search search{QFile::encodeName(name) + ".so", {}};
    dl_iterate_phdr(&compareModule, &search);
    return search.path.isEmpty() ? QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))
                                 : QFile::decodeName(search.path);
}

} // namespace ZyxPlatform

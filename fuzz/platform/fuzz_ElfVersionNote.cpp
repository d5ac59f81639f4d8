// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ElfVersionNote.h"

#include <QtCore/QBuffer>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray content(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer file(&content);
    file.open(QIODevice::ReadOnly);
    const auto version = ZyxPlatform::readElfVersionNote(file);
    // A version is nothing but bytes of the file.
    if (version && !content.contains(QByteArray(reinterpret_cast<const char *>(version->data()), sizeof(*version)))) {
        std::abort();
    }
    return 0;
}

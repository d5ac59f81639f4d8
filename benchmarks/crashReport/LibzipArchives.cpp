// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LibzipArchives.h"

#include "TestFolder.h"

#include <QtCore/QFile>

#include <zip.h>

#include <algorithm>
#include <array>
#include <memory>

namespace {

using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;
using Entry = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;

Archive openArchive(const QString &path, int flags)
{
    return {zip_open(QFile::encodeName(path).constData(), flags, nullptr), &zip_discard};
}

bool addFile(zip_t *archive, const QString &path, const QString &name)
{
    zip_source_t *content = zip_source_file(archive, QFile::encodeName(path).constData(), 0, 0);
    const zip_int64_t index = zip_file_add(archive, name.toUtf8().constData(), content, ZIP_FL_ENC_UTF_8);
    return index >= 0 && zip_set_file_compression(archive, zip_uint64_t(index), ZIP_CM_STORE, 0) == 0;
}

bool extractFile(zip_t *archive, zip_uint64_t index, const QString &folder)
{
    const Entry entry(zip_fopen_index(archive, index, 0), &zip_fclose);
    QFile file(folder + u'/' + QString::fromUtf8(zip_get_name(archive, index, 0)));
    if (!entry || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    std::array<char, 8192> buffer{};
    zip_int64_t count = 0;
    do {
        count = zip_fread(entry.get(), buffer.data(), buffer.size());
    } while (count > 0 && file.write(buffer.data(), count) == count);
    return count == 0;
}

} // namespace

bool packByLibzip(const TestFolder &folder)
{
    Archive archive = openArchive(folder.packed, ZIP_CREATE | ZIP_EXCL);
    const QStringList names = folder.sourceFiles();
    return archive
        && std::all_of(names.begin(), names.end(),
                       [&](const QString &name) { return addFile(archive.get(), folder.sources + u'/' + name, name); })
        && zip_close(archive.release()) == 0; // writes it
}

bool unpackByLibzip(const TestFolder &folder)
{
    const Archive archive = openArchive(folder.archive, ZIP_RDONLY);
    if (!archive) {
        return false;
    }
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        if (!extractFile(archive.get(), zip_uint64_t(i), folder.unpacked)) {
            return false;
        }
    }
    return true;
}

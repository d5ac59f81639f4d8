// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveLibzip.h"

#include <QtCore/QFile>

#include <zip.h>

#include <memory>

namespace TestSupport {

namespace {

using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;
using EntryFile = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;

Archive openArchive(const QString &path, int flags)
{
    return {zip_open(QFile::encodeName(path).constData(), flags, nullptr), &zip_discard};
}

QByteArray readContent(zip_t *archive, const zip_stat_t &status, const QByteArray &password)
{
    const EntryFile file(
        zip_fopen_index_encrypted(archive, status.index, 0, password.isEmpty() ? nullptr : password.constData()),
        &zip_fclose);
    QByteArray content(qsizetype(status.size), '\0');
    if (!file || zip_fread(file.get(), content.data(), status.size) != zip_int64_t(status.size)) {
        return {};
    }
    char beyond = 0;
    const bool isEnd = zip_fread(file.get(), &beyond, 1) == 0; // also checks the sum
    return isEnd ? content : QByteArray();
}

} // namespace

bool hasLibzip()
{
    return true;
}

QList<LibzipEntry> readByLibzip(const QString &archive, const QByteArray &password)
{
    const Archive opened = openArchive(archive, ZIP_RDONLY | ZIP_CHECKCONS);
    QList<LibzipEntry> entries;
    const zip_int64_t count = opened ? zip_get_num_entries(opened.get(), 0) : 0;
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t status;
        if (zip_stat_index(opened.get(), zip_uint64_t(i), 0, &status) != 0) {
            return {};
        }
        entries.append({QString::fromUtf8(status.name), status.size, status.crc, status.comp_method,
                        status.encryption_method, readContent(opened.get(), status, password)});
    }
    return entries;
}

bool packByLibzip(const QString &archive, const Files &files, bool isStored)
{
    Archive made = openArchive(archive, ZIP_CREATE | ZIP_TRUNCATE);
    for (auto file = files.begin(); made && file != files.end(); ++file) {
        zip_source_t *source
            = zip_source_buffer(made.get(), file.value().constData(), zip_uint64_t(file.value().size()), 0);
        const zip_int64_t index = zip_file_add(made.get(), file.key().toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            return false;
        }
        zip_set_file_compression(made.get(), zip_uint64_t(index), isStored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0);
    }
    return made && zip_close(made.release()) == 0;
}

} // namespace TestSupport

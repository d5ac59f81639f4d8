// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ArchiveCheck.h"

#include "ZipInMemory.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QList>

#include <algorithm>
#include <array>

namespace {

constexpr ZPOS64_T maximumEntries = 1000; // a report has a dump or two and a few logs
constexpr uLong maximumNameSize = 255; // of the library's own reader
constexpr qint64 maximumContent = qint64(256) * 1024 * 1024; // entries of reports are stored, not compressed

bool isSafeName(const QByteArray &name)
{
    const bool hasDrive = name.size() > 1 && name[1] == ':';
    if (name.isEmpty() || name.startsWith('/') || name.contains('\\') || hasDrive) {
        return false;
    }
    const auto isControl = [](char character) { return static_cast<unsigned char>(character) < ' '; };
    return !name.split('/').contains("..") && std::none_of(name.cbegin(), name.cend(), isControl);
}

/*! Goes through the entries of an archive and stops at the first that is not as it should be. */
class EntryReader
{
public:
    explicit EntryReader(unzFile archive)
        : m_archive(archive)
    {
    }

    ArchiveVerdict readAll(ZPOS64_T count)
    {
        for (ZPOS64_T i = 0; i < count; ++i) {
            const bool isFound = (i == 0 ? unzGoToFirstFile(m_archive) : unzGoToNextFile(m_archive)) == UNZ_OK;
            const ArchiveVerdict verdict = isFound ? readEntry() : ArchiveVerdict::DamagedArchive;
            if (verdict != ArchiveVerdict::Good) {
                return verdict;
            }
        }
        return m_hasReport ? ArchiveVerdict::Good : ArchiveVerdict::NoReport;
    }

private:
    ArchiveVerdict readEntry()
    {
        unz_file_info64 info{};
        std::array<char, maximumNameSize + 1> buffer{};
        if (unzGetCurrentFileInfo64(m_archive, &info, buffer.data(), buffer.size(), nullptr, 0, nullptr, 0) != UNZ_OK) {
            return ArchiveVerdict::DamagedArchive;
        }
        if (info.size_filename > maximumNameSize) {
            return ArchiveVerdict::UnsafeName;
        }
        const QByteArray name(buffer.data(), qsizetype(info.size_filename));
        if (!isSafeName(name)) {
            return ArchiveVerdict::UnsafeName;
        }
        m_hasReport = m_hasReport || name == "report.xml";
        return readContent(info.uncompressed_size);
    }

    ArchiveVerdict readContent(ZPOS64_T size)
    {
        if (unzOpenCurrentFile(m_archive) != UNZ_OK) {
            return ArchiveVerdict::DamagedArchive;
        }
        ZPOS64_T read = 0;
        int piece = 0;
        while ((piece = unzReadCurrentFile(m_archive, m_piece.data(), unsigned(m_piece.size()))) > 0) {
            read += ZPOS64_T(piece);
            m_content += piece;
            if (m_content > maximumContent) {
                unzCloseCurrentFile(m_archive);
                return ArchiveVerdict::TooMuchContent;
            }
        }
        const bool isRightChecksum = unzCloseCurrentFile(m_archive) == UNZ_OK;
        const bool isComplete = piece == 0 && read == size;
        return isComplete && isRightChecksum ? ArchiveVerdict::Good : ArchiveVerdict::DamagedArchive;
    }

    unzFile m_archive;
    QByteArray m_piece = QByteArray(65536, Qt::Uninitialized);
    qint64 m_content = 0;
    bool m_hasReport = false;
};

} // namespace

ArchiveVerdict checkArchive(const QByteArray &archive)
{
    const CZipInMemory zip(archive);
    unz_global_info64 info{};
    if (zip.handle() == nullptr || unzGetGlobalInfo64(zip.handle(), &info) != UNZ_OK) {
        return ArchiveVerdict::NotAnArchive;
    }
    if (info.number_entry > maximumEntries) {
        return ArchiveVerdict::TooManyEntries;
    }
    return EntryReader(zip.handle()).readAll(info.number_entry);
}

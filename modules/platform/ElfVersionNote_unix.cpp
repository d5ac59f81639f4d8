// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ElfVersionNote.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QIODevice>
#include <QtCore/QtEndian>

#include <cstring>
#include <elf.h>
#include <type_traits>

namespace ZyxPlatform {

namespace {

constexpr quint32 versionNoteType = 1;
constexpr char versionNoteOwner[] = "zyx"; // its size counts the closing zero, as ELF notes do
constexpr int mostProgramHeaders = 256; // linkers write about a dozen
constexpr quint64 mostNoteBytes = 64ULL * 1024; // a build identifier and a version need some hundred

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the note is read as the machine's own numbers");

bool isInside(const QIODevice &file, quint64 position)
{
    return position < quint64(file.size());
}

template <typename Record>
bool readRecord(QIODevice &file, quint64 position, Record &record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    return isInside(file, position) && file.seek(qint64(position))
        && file.read(reinterpret_cast<char *>(&record), sizeof(Record)) == sizeof(Record);
}

quint64 alignedUp(quint64 size, quint64 alignment)
{
    return (size + alignment - 1) / alignment * alignment;
}

bool isVersionNote(const Elf64_Nhdr &note, const char *name)
{
    return note.n_type == versionNoteType && note.n_namesz == sizeof(versionNoteOwner)
        && note.n_descsz == sizeof(FileVersion) && std::memcmp(name, versionNoteOwner, sizeof(versionNoteOwner)) == 0;
}

/*! Looks through the notes of one segment; \a alignment is the one its header tells. */
std::optional<FileVersion> versionAmong(QByteArrayView notes, quint64 alignment)
{
    const auto total = quint64(notes.size());
    quint64 position = 0;
    while (position + sizeof(Elf64_Nhdr) <= total) {
        Elf64_Nhdr note;
        std::memcpy(&note, notes.data() + position, sizeof(note));
        const quint64 name = position + sizeof(note);
        const quint64 description = alignedUp(name + note.n_namesz, alignment);
        if (description + note.n_descsz > total) {
            return std::nullopt;
        }
        if (isVersionNote(note, notes.data() + name)) {
            FileVersion version;
            std::memcpy(version.data(), notes.data() + description, sizeof(version));
            return version;
        }
        position = alignedUp(description + note.n_descsz, alignment);
    }
    return std::nullopt;
}

std::optional<FileVersion> versionInSegment(QIODevice &file, const Elf64_Phdr &segment)
{
    if (segment.p_type != PT_NOTE || segment.p_filesz > mostNoteBytes || !isInside(file, segment.p_offset)
        || !file.seek(qint64(segment.p_offset))) {
        return std::nullopt;
    }
    return versionAmong(file.read(qint64(segment.p_filesz)), segment.p_align == 8 ? 8 : 4);
}

bool isReadableElf(const Elf64_Ehdr &header)
{
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == ELFCLASS64
        && header.e_ident[EI_DATA] == ELFDATA2LSB && header.e_phentsize == sizeof(Elf64_Phdr)
        && header.e_phnum <= mostProgramHeaders;
}

} // namespace

std::optional<FileVersion> readElfVersionNote(QIODevice &file)
{
    Elf64_Ehdr header;
    if (!readRecord(file, 0, header) || !isReadableElf(header)) {
        return std::nullopt;
    }
    for (quint64 i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        if (!readRecord(file, header.e_phoff + i * sizeof(segment), segment)) {
            return std::nullopt;
        }
        if (const auto version = versionInSegment(file, segment)) {
            return version;
        }
    }
    return std::nullopt;
}

} // namespace ZyxPlatform

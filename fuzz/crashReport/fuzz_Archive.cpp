// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/UnZipMod_p.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>

namespace {

constexpr std::size_t largestArchive = 4096; // eighty entries may share some megabytes: that fits on any disk
constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

void check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

/*! "made.zip" and "box/out", which takes what is extracted. Nothing else may ever be there. */
class Place
{
public:
    Place()
    {
        check(m_folder.isValid() && QDir(m_folder.path()).mkdir(QStringLiteral("box")) && makeTarget());
    }

    QString box() const
    {
        return m_folder.filePath(QStringLiteral("box"));
    }

    QString archive() const
    {
        return m_folder.filePath(QStringLiteral("made.zip"));
    }

    QString target() const
    {
        return m_folder.filePath(QStringLiteral("box/out"));
    }

    void clean() const
    {
        check(QDir(m_folder.path()).entryList(everything)
              == QStringList({QStringLiteral("box"), QStringLiteral("made.zip")}));
        check(QDir(m_folder.filePath(QStringLiteral("box"))).entryList(everything)
              == QStringList(QStringLiteral("out")));
        if (!QDir(target()).isEmpty(everything)) {
            check(QDir(target()).removeRecursively() && makeTarget());
        }
    }

private:
    bool makeTarget() const
    {
        return QDir(m_folder.filePath(QStringLiteral("box"))).mkdir(QStringLiteral("out"));
    }

    QTemporaryDir m_folder;
};

void extract(const Place &place, const QString &entry, const QByteArray &password)
{
    const QString before = QDir::currentPath();
    check(QDir::setCurrent(place.box())); // names are also tried from the working folder
    try {
        ZYX_zglv6::UnZipMod::extractZipArchive(place.target(), place.archive(), entry, password);
    } catch (const std::filesystem::filesystem_error &error) {
        check(error.code().value() != 0); // a folder that could not be made
    }
    check(QDir::setCurrent(before));
    place.clean();
}

std::unique_ptr<Place> &place()
{
    static std::unique_ptr<Place> instance;
    return instance;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argumentCount*/, char *** /*arguments*/)
{
    place() = std::make_unique<Place>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > largestArchive) {
        return -1;
    }
    QFile::remove(place()->archive());
    {
        QFile file(place()->archive());
        const auto length = qint64(size);
        check(file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char *>(data), length) == length);
    }
    extract(*place(), QString(), QByteArray());
    extract(*place(), QString(), QByteArray("secret"));
    extract(*place(), QStringLiteral("sub/b"), QByteArray());
    return 0;
}

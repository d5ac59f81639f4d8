// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <cstdint>
#include <memory>
#include <new>
#include <string>

namespace TestSupport {

/*! Frees pixels as load() says. */
struct PixelDeleter
{
    void operator()(char *pixels) const
    {
        ::operator delete(pixels);
    }
};

using Pixels = std::unique_ptr<char, PixelDeleter>;

/*! What load() of a record gives: its result, and the pixels if there are any. */
struct Loading
{
    bool result = false;
    Pixels pixels;

    /*! The pixels of an image of \a size bytes; a null array for none. */
    QByteArray bytes(std::uint64_t size) const;
};

template <typename Record>
Loading loaded(Record &record)
{
    char *pixels = reinterpret_cast<char *>(&record); // load() has to set it
    Loading loading;
    loading.result = record.load(&pixels);
    loading.pixels.reset(pixels);
    return loading;
}

/*! A folder with a data file's and an image file's place in it. */
class RecordFiles
{
public:
    RecordFiles();

    /*! As a record takes it. */
    std::string path() const;
    QString dataFile() const;
    QString imageFile() const;

    /*! A file's or folder's place in the folder. */
    QString filePath(const QString &name) const;

private:
    QTemporaryDir m_folder;
};

bool writeFile(const QString &path, QByteArrayView bytes);

/*! Nothing where there is no such file. */
QByteArray readFile(const QString &path);

/*! \a size bytes, all 256 among them if there are so many. */
QByteArray pixelBytes(qsizetype size);

} // namespace TestSupport

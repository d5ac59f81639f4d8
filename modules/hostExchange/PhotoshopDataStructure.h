// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ZYX_zglv6 {

/*!
    The record that a plug-in and the application hand to each other: a table of keys and values in one file, the raw
    pixels of an image in a second one beside it.

    Without Qt: a plug-in's module need not have it. Nothing throws but what the standard library throws where memory
    ends, and nothing is logged: each failure is a result. An object belongs to one thread. What keeps the two sides
    apart is their order: one ends its save() before the other begins its load().

    The keys are those of PluginKeys.h. Which tag a key has is agreed between the two sides; here "width", "height" and
    "depth" are integers (tag 1). "depth" is the number of bits of one of the image's three channels.
*/
class UTILSDLL_EXPORT PhotoshopDataStructure
{
public:
    class DataVariant;

    /*! \a filePath: of the data file, in the system's narrow encoding. With an empty one nothing is saved or loaded. */
    explicit PhotoshopDataStructure(std::string filePath = {});
    virtual ~PhotoshopDataStructure();

    PhotoshopDataStructure(const PhotoshopDataStructure &) = delete;
    PhotoshopDataStructure &operator=(const PhotoshopDataStructure &) = delete;

    /*!
        Stores the dimensions in the table, one below 1 as 0, and writes the data file and then imageSize() bytes of
        \a imageData to the image file. Null \a imageData, or a size of 0: only the data file is written, an image file
        from earlier stays as it was.

        False: the data file can't be written, or the image file could be opened and not be written whole. An image file
        that can't be opened is no failure.
    */
    [[nodiscard]] virtual bool save(const char *imageData, int width, int height, int depth);

    /*!
        Reads the data file and, where \a imageData is not null and isImageExpected() says so, the image file.

        The result speaks for the data file alone: false where it can't be opened or ends too soon. \a imageData gets
        the pixels, or null where none are expected, or the image file can't be read, is not exactly imageSize() bytes
        long or does not fit into memory; the table decides, also when it is an old one because no new one was read.

        The caller owns the pixels and frees them by "::operator delete(pixels)".
    */
    [[nodiscard]] virtual bool load(char **imageData);

    /*! Whether load() goes on to the image file, asked after the data file has been read. Here: always. */
    [[nodiscard]] virtual bool isImageExpected() const;

    /*! The path of the data file with "-image" behind it; empty without one. */
    [[nodiscard]] std::string imageFilePath() const;

    /*! 0 where the key is missing or its value has another tag than 1. */
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    [[nodiscard]] int depth() const; //!< bits of a channel

    /*!
        Bytes of the image: width * height * depth * 3 / 8 in 64 bits, rounded down; 0 where one of them is below 1. It
        wraps round where 64 bits are too few: who trusts nobody checks the three numbers.
    */
    [[nodiscard]] std::uint64_t imageSize() const;

    /*! Stores a value in place of an earlier one; an empty \a key stores nothing. The integer gets tag 1. */
    void setValue(const std::string &key, int value);
    void setValue(const std::string &key, DataVariant value);

    /*! All that the table holds. */
    [[nodiscard]] const std::unordered_map<std::string, DataVariant> &data() const;

    /*!
        Writes the table; does nothing on a stream that is not good. An entry without a value can't be read again: it
        takes the next entry's key for its value.
    */
    void serialize(std::ostream &stream) const;

    /*!
        Reads a table in place of the present one; does nothing on a stream that is not good.

        What is damaged gives the entries before the damage, and what can be made out behind it; where more was wanted
        than there is, the stream is no longer good. A length costs no memory beyond the bytes that are really there.
    */
    void deserialize(std::istream &stream);

    /*! The table to and from a file of its own. False: an empty path, or a file that can't be written or read. */
    [[nodiscard]] bool writeToFile(const std::string &path) const;
    [[nodiscard]] bool readFromFile(const std::string &path);

protected:
    /*! The value of an entry with tag 1, else \a fallback. */
    [[nodiscard]] int intValue(const std::string &key, int fallback) const;

private:
    std::unordered_map<std::string, DataVariant> m_data;
    std::string m_filePath;
};

/*! One value of the table, or none. Copies share what they hold, which nobody changes any more. */
class UTILSDLL_EXPORT PhotoshopDataStructure::DataVariant
{
public:
    /*! The tags, in memory and in the file. */
    enum Type : std::int32_t { Int = 1, Bits32 = 2, Bits64 = 3, UInt64 = 4, Bytes = 5, Bool = 6, String = 7 };

    struct UTILSDLL_EXPORT dataHolder
    {
        union Value {
            std::int32_t number;
            std::uint32_t bits32;
            std::uint64_t bits64; // tags 3 and 4
            std::vector<unsigned char> *bytes; // owned; null for no bytes
            bool boolean;
            std::string *text; // owned; null for an empty one
        };

        explicit dataHolder(std::int32_t tag);
        ~dataHolder(); // frees the bytes of tag 5 and the text of tag 7

        dataHolder(const dataHolder &) = delete;
        dataHolder &operator=(const dataHolder &) = delete;

        std::int32_t type;
        Value value = {.bits64 = 0};
    };

    DataVariant() = default;
    explicit DataVariant(std::shared_ptr<dataHolder> holder);

    static DataVariant fromInt(std::int32_t value);
    static DataVariant fromBits32(std::uint32_t value);
    static DataVariant fromBits64(std::uint64_t value);
    static DataVariant fromUInt64(std::uint64_t value);
    static DataVariant fromBytes(std::span<const unsigned char> value);
    static DataVariant fromBool(bool value);
    static DataVariant fromString(std::string_view value);

    /*! The tag; 0 for no value. */
    [[nodiscard]] std::int32_t type() const;

    /*! The value, where it has the tag of that name. Bytes and text live as long as a variant that shares them. */
    [[nodiscard]] std::optional<std::int32_t> toInt() const;
    [[nodiscard]] std::optional<std::uint32_t> toBits32() const;
    [[nodiscard]] std::optional<std::uint64_t> toBits64() const;
    [[nodiscard]] std::optional<std::uint64_t> toUInt64() const;
    [[nodiscard]] std::optional<std::span<const unsigned char>> toBytes() const;
    [[nodiscard]] std::optional<bool> toBool() const;
    [[nodiscard]] std::optional<std::string_view> toString() const;

    /*! Null for no value. */
    [[nodiscard]] const dataHolder *holder() const;

private:
    std::shared_ptr<dataHolder> m_holder;
};

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "RecordText.h"

#include "PrintableText.h"
#include "RecordPaths.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <utility>

using namespace ZYX_zglv6;

namespace {

using DataVariant = PhotoshopDataStructure::DataVariant;

constexpr std::size_t mostShownBytes = 16;

QString hex(quint64 number, int digits)
{
    return u"0x"_qs + QString::number(number, 16).rightJustified(digits, u'0');
}

QString bytesText(std::span<const unsigned char> bytes)
{
    const auto shown = bytes.first(std::min(bytes.size(), mostShownBytes));
    const QByteArray start(reinterpret_cast<const char *>(shown.data()), qsizetype(shown.size()));
    QString text = u"%1 bytes"_qs.arg(bytes.size());
    if (!start.isEmpty()) {
        text += u": "_qs + QString::fromLatin1(start.toHex(' '));
    }
    return shown.size() < bytes.size() ? QString(text + u" ..."_qs) : text;
}

/*! The tag with its name, and the value. Those of tags 2 and 3 mean nothing here beyond their bits. */
std::pair<QString, QString> typeAndValue(const DataVariant &value)
{
    switch (value.type()) {
    case DataVariant::Int:
        return {u"1 Int"_qs, QString::number(*value.toInt())};
    case DataVariant::Bits32:
        return {u"2 Bits32"_qs, hex(*value.toBits32(), 8)};
    case DataVariant::Bits64:
        return {u"3 Bits64"_qs, hex(*value.toBits64(), 16)};
    case DataVariant::UInt64:
        return {u"4 UInt64"_qs, QString::number(*value.toUInt64())};
    case DataVariant::Bytes:
        return {u"5 Bytes"_qs, bytesText(*value.toBytes())};
    case DataVariant::Bool:
        return {u"6 Bool"_qs, *value.toBool() ? u"true"_qs : u"false"_qs};
    case DataVariant::String:
        return {u"7 String"_qs, quoted(*value.toString())};
    default:
        return {u"0 none"_qs, QString()};
    }
}

} // namespace

QStringList linesOf(const PhotoshopDataStructure &record)
{
    const std::map<std::string_view, DataVariant> sorted(record.data().begin(), record.data().end());
    QStringList lines;
    for (const auto &[key, value] : sorted) {
        const auto [type, text] = typeAndValue(value);
        lines += QString(quoted(key).leftJustified(24) + u' ' + type.leftJustified(9) + text);
    }
    return lines;
}

qint64 surplusBytes(const PhotoshopDataStructure &record, const QString &path)
{
    std::ostringstream entries;
    record.serialize(entries);
    return fileSize(path) - qint64(entries.tellp());
}

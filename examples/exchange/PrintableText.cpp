// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PrintableText.h"

#include <QtCore/QList>
#include <QtCore/QStringDecoder>

namespace {

constexpr int mostCharacters = 200; // two or three lines of a terminal

/*! Not the line and paragraph ends of Unicode, and not the format characters: those turn the order of a line round. */
bool canBeShown(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return QChar::isPrint(character) && category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

QString escaped(char32_t character)
{
    switch (character) {
    case U'\n':
        return u"\\n"_qs;
    case U'\r':
        return u"\\r"_qs;
    case U'\t':
        return u"\\t"_qs;
    case U'"':
        return u"\\\""_qs;
    case U'\\':
        return u"\\\\"_qs;
    default:
        return canBeShown(character) ? QString::fromUcs4(&character, 1) : u"\\u{%1}"_qs.arg(uint(character), 0, 16);
    }
}

QString escapedByte(char32_t byte)
{
    return byte > 0x7f ? u"\\x%1"_qs.arg(uint(byte), 2, 16, QChar(u'0')) : escaped(byte);
}

} // namespace

QString onOneLine(const QString &text)
{
    QString line;
    for (const uint character : text.toUcs4()) {
        const char32_t shown = canBeShown(character) ? character : U' ';
        line += QString::fromUcs4(&shown, 1);
    }
    return line;
}

QString quoted(std::string_view bytes)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString text = decoder.decode(QByteArrayView(bytes));
    const bool isUtf8 = !decoder.hasError();
    const QList<uint> characters = (isUtf8 ? text : QString::fromLatin1(QByteArrayView(bytes))).toUcs4();
    QString result(u'"');
    for (const uint character : characters.first(qMin<qsizetype>(characters.size(), mostCharacters))) {
        result += isUtf8 ? escaped(character) : escapedByte(character);
    }
    result += u'"';
    return characters.size() <= mostCharacters ? result : QString(result + u"... (%1 bytes)"_qs.arg(bytes.size()));
}

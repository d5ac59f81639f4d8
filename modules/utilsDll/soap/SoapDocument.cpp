// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/SoapDocument_p.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ZYX_zglv6 {

namespace {

// Elements, attributes, texts, comments and the like. Qt's document and the values take about 1 kB for each.
constexpr int maximumNodes = 1'000'000;

// Of an element and those around it: the parser looks through them for each prefix. Real elements have a dozen.
constexpr int maximumAttributesInScope = 256;

// Qt's document has a copy of the name of its namespace in each element and attribute. This is 100 characters for each
// of the nodes that there may be.
constexpr qint64 maximumNamespaceCharacters = qint64(100) * maximumNodes;

/*! Follows the markup of a document in UTF-8 from tag to tag. What no parser accepts is left to Qt's. */
class MarkupScanner
{
public:
    explicit MarkupScanner(QByteArrayView document)
        : m_document(document)
    {
    }

    /*! What the document has too much of. */
    std::optional<SoapDocumentError> scan()
    {
        for (qsizetype end = 0; skipTo("<"); end = m_at) {
            m_nodes += (m_at > end) ? 1 : 0; // a text
            if (const QString message = scanMarkup(); !message.isEmpty()) {
                const QByteArrayView before = m_document.first(m_at);
                const QByteArrayView line = before.sliced(before.lastIndexOf('\n') + 1);
                return SoapDocumentError{message, int(before.count('\n')) + 1, int(QString::fromUtf8(line).size())};
            }
        }
        return std::nullopt;
    }

private:
    struct OpenElement
    {
        int attributes;
        qsizetype longestNamespace; // of this one and those around it
    };

    bool startsWith(QByteArrayView text) const
    {
        return m_document.sliced(m_at).startsWith(text);
    }

    /*! False, and at the end, if there is no such text. */
    bool skipTo(QByteArrayView text)
    {
        const qsizetype found = m_document.indexOf(text, m_at);
        m_at = found < 0 ? m_document.size() : found;
        return found >= 0;
    }

    void skipBehind(QByteArrayView text)
    {
        if (skipTo(text)) {
            m_at += text.size();
        }
    }

    /*! The name in front of the "=" here. No further back than the one before, so that many in a row take no time. */
    QByteArrayView attributeName() const
    {
        const auto isAnyOf
            = [this](QByteArrayView characters, qsizetype at) { return characters.contains(m_document[at]); };
        qsizetype end = m_at;
        while (end > 0 && isAnyOf(" \t\r\n", end - 1)) {
            --end;
        }
        qsizetype start = end;
        while (start > 0 && !isAnyOf(" \t\r\n=\"'<", start - 1)) {
            --start;
        }
        return m_document.sliced(start, end - start);
    }

    /*! Goes behind the markup that starts here; gives the limit that it exceeds. */
    QString scanMarkup()
    {
        if (startsWith("</")) {
            closeElement();
            skipBehind(">");
            return {};
        }
        ++m_nodes;
        if (startsWith("<!--")) {
            m_at += 4;
            skipBehind("-->");
        } else if (startsWith("<![CDATA[")) {
            skipBehind("]]>");
        } else if (startsWith("<?")) {
            skipBehind("?>");
        } else if (startsWith("<!")) {
            return u"A document type declaration is not accepted"_qs;
        } else {
            scanStartTag();
        }
        return exceededLimit();
    }

    void scanStartTag()
    {
        int attributes = 0;
        qsizetype longestNamespace = m_open.empty() ? 0 : m_open.back().longestNamespace;
        bool isNamespace = false;
        bool isEmptyElement = false;
        for (++m_at; m_at < m_document.size() && m_document[m_at] != '>'; ++m_at) {
            const char character = m_document[m_at];
            isEmptyElement = character == '/';
            if (character == '=') {
                ++attributes;
                isNamespace = attributeName().startsWith("xmlns");
            } else if (character == '"' || character == '\'') {
                const qsizetype start = ++m_at;
                if (!skipTo(QByteArrayView(&character, 1))) {
                    break;
                }
                longestNamespace = std::max(longestNamespace, isNamespace ? m_at - start : 0);
            }
        }
        skipBehind(">");
        m_nodes += attributes;
        m_attributesInScope += attributes;
        m_namespaceCharacters += longestNamespace * (attributes + 1);
        m_open.push_back({attributes, longestNamespace});
        m_isTooDeep = m_open.size() > std::size_t(maximumDepth);
        m_hasTooManyAttributes = m_attributesInScope > maximumAttributesInScope;
        if (isEmptyElement) {
            closeElement();
        }
    }

    void closeElement()
    {
        if (!m_open.empty()) {
            m_attributesInScope -= m_open.back().attributes;
            m_open.pop_back();
        }
    }

    QString exceededLimit() const
    {
        if (m_nodes > maximumNodes) {
            return u"More than %1 nodes are not accepted"_qs.arg(maximumNodes);
        }
        if (m_isTooDeep) {
            return u"Elements nested more than %1 deep are not accepted"_qs.arg(maximumDepth);
        }
        if (m_hasTooManyAttributes) {
            return u"More than %1 attributes in scope are not accepted"_qs.arg(maximumAttributesInScope);
        }
        if (m_namespaceCharacters > maximumNamespaceCharacters) {
            return u"Names of namespaces of this length are not accepted in so many places"_qs;
        }
        return {};
    }

    QByteArrayView m_document;
    qsizetype m_at = 0;
    int m_nodes = 0;
    int m_attributesInScope = 0;
    bool m_isTooDeep = false;
    bool m_hasTooManyAttributes = false;
    qint64 m_namespaceCharacters = 0;
    std::vector<OpenElement> m_open;
};

/*! Parses bytes in UTF-8, or a text. */
template <typename Content>
std::optional<SoapDocumentError> parse(const Content &content, QDomDocument &document)
{
    SoapDocumentError error{};
    const bool isRead = document.setContent(content, true, &error.message, &error.line, &error.column);
    return isRead ? std::nullopt : std::optional(error);
}

/*! The XML declaration, cut off where no real one goes on; empty if there is none. */
QString declarationOf(const QByteArray &bytes)
{
    constexpr qsizetype longest = 1000; // with its blanks; the usual one has 38 characters
    static const QRegularExpression declaration(u"^(\u00ef\u00bb\u00bf)?<\\?xml\\s.*?(\\?>|$)"_qs,
                                                QRegularExpression::DotMatchesEverythingOption);
    return declaration.match(QString::fromLatin1(bytes.left(longest))).captured();
}

/*! Whether the parser is sure to take the bytes as UTF-8. A declaration of another form may make it change its mind. */
bool isSurelyUtf8(const QByteArray &bytes)
{
    const auto detected = QStringConverter::encodingForData(bytes, u'<');
    if (detected && *detected != QStringConverter::Utf8) {
        return false;
    }
    static const QRegularExpression usual(u"xml\\s+version=[\"']1\\.0[\"'](\\s+encoding=[\"']utf-8[\"'])?\\s*\\?>$"_qs,
                                          QRegularExpression::CaseInsensitiveOption);
    const QString declaration = declarationOf(bytes);
    return declaration.isEmpty() || usual.match(declaration).hasMatch();
}

/*! The decoder for the bytes: by their pattern, as the parser has it, otherwise as they declare. */
QStringDecoder decoderFor(const QByteArray &bytes)
{
    const auto detected = QStringConverter::encodingForData(bytes, u'<');
    if (detected) {
        return QStringDecoder(*detected);
    }
    static const QRegularExpression encoding(u"\\sencoding\\s*=\\s*[\"']([^\"']*)[\"']"_qs);
    const auto declared = encoding.match(declarationOf(bytes));
    return declared.hasMatch() ? QStringDecoder(declared.captured(1).toLatin1().constData())
                               : QStringDecoder(QStringConverter::Utf8);
}

} // namespace

std::optional<SoapDocumentError> readDocument(const QByteArray &bytes, QDomDocument &document)
{
    if (bytes.size() > maximumDocumentSize) {
        return SoapDocumentError{u"More than %1 bytes are not accepted"_qs.arg(maximumDocumentSize), 1, 0};
    }
    if (isSurelyUtf8(bytes)) {
        const auto tooMuch = MarkupScanner(bytes).scan();
        return tooMuch ? tooMuch : parse(bytes, document);
    }
    // What is scanned must be what is parsed: of a text the parser ignores the encoding that it declares.
    QStringDecoder decoder = decoderFor(bytes);
    if (!decoder.isValid()) {
        return SoapDocumentError{u"The declared encoding is not known"_qs, 1, 0};
    }
    const QString text = decoder(bytes);
    if (decoder.hasError()) {
        return SoapDocumentError{u"The text is not in the declared encoding"_qs, 1, 0};
    }
    const auto tooMuch = MarkupScanner(text.toUtf8()).scan();
    return tooMuch ? tooMuch : parse(text, document);
}

} // namespace ZYX_zglv6

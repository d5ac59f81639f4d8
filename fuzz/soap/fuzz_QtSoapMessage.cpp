// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SoapFuzzing.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace ZYX_zglv6;
using namespace SoapFuzzing;

namespace {

/*! The two kinds of document that leave no fault: without an element where the envelope belongs. */
bool hasElementForEnvelope(const QDomDocument &document)
{
    const QDomNode first = document.firstChild();
    return (first.isProcessingInstruction() ? first.nextSibling() : first).isElement();
}

int depthOf(const QDomDocument &document)
{
    int deepest = 0;
    for (QDomNode node = document.firstChild(); !node.isNull(); node = nextInDocument(node)) {
        int depth = 0;
        for (QDomNode up = node; up.isElement(); up = up.parentNode()) {
            ++depth;
        }
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

/*! Arrays are written in no particular order, and their positions are not read back. */
bool mayHoldArrays(const QByteArray &bytes)
{
    return bytes.toLower().contains("array") || bytes.contains('\0') || bytes.contains('&');
}

/*! The document with the attributes of each tag in order, for they are written in none. */
QString inOrder(const QString &document)
{
    QString result;
    qsizetype at = 0;
    while (at < document.size()) {
        const qsizetype end = document.indexOf(u'>', at);
        if (document[at] != u'<' || end < 0) {
            const qsizetype next = document.indexOf(u'<', at + 1);
            result += document.mid(at, next < 0 ? -1 : next - at);
            at = next < 0 ? document.size() : next;
            continue;
        }
        QStringList parts = document.mid(at, end - at).split(u' ');
        std::sort(parts.begin() + 1, parts.end());
        result += parts.join(u' ');
        at = end;
    }
    return result;
}

void checkRewriting(const QtSoapMessage &message)
{
    QtSoapMessage second;
    check(second.setContent(message.toXmlString(-1).toUtf8()));
    const QString writtenAgain = second.toXmlString(-1);
    QtSoapMessage third;
    check(third.setContent(writtenAgain.toUtf8()));
    check(inOrder(third.toXmlString(-1)) == inOrder(writtenAgain));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argumentCount*/, char *** /*arguments*/)
{
    initialise();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    QtSoapMessage message;
    const bool isRead = message.setContent(bytes);
    const std::optional<QDomDocument> document = documentOf(bytes);
    check(!document || depthOf(*document) <= maximumDepth);
    if (isRead) {
        check(document && hasElementForEnvelope(*document));
        if (!mayHoldArrays(bytes)) {
            checkRewriting(message);
        }
    } else {
        const bool isWithoutFault = document && !hasElementForEnvelope(*document);
        check(message.isFault() != isWithoutFault);
    }
    QtSoapMessage used; // an earlier fault must not hide a new one
    used.setFaultCode(QtSoapMessage::Other);
    check(used.setContent(bytes) == isRead);
    check(used.isFault() == message.isFault());
    static_cast<void>(message.faultCode());
    static_cast<void>(message.returnValue().toString() + message.faultString().toString());
    static_cast<void>(message.faultDetail().count());
    static_cast<void>(message.toXmlString(1));
    if (document) {
        QDomDocument copy = *document;
        QtSoapMessage byDocument;
        check(byDocument.setContent(copy) == isRead);
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/SoapDocument_p.h"

#include <QtCore/QByteArray>
#include <QtXml/QDomDocument>

#include <cstdint>
#include <cstdlib>
#include <optional>

namespace SoapFuzzing {

inline void check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

inline void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
    // Misuse and failures are reported by messages.
}

inline void initialise()
{
    qInstallMessageHandler(ignoreMessage);
    const ZYX_zglv6::QtSoapMessage registersThePrefixes;
}

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), qsizetype(size)};
}

/*! The document as a message reads it; nothing if it is refused. */
inline std::optional<QDomDocument> documentOf(const QByteArray &bytes)
{
    QDomDocument document;
    return ZYX_zglv6::readDocument(bytes, document) ? std::nullopt : std::optional(document);
}

/*! The node that follows in the order of the document; null behind the last one. */
inline QDomNode nextInDocument(const QDomNode &node)
{
    if (node.hasChildNodes()) {
        return node.firstChild();
    }
    QDomNode up = node;
    while (!up.isNull() && up.nextSibling().isNull()) {
        up = up.parentNode();
    }
    return up.nextSibling();
}

} // namespace SoapFuzzing

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

#include <optional>

namespace ZYX_zglv6 {

/*!
    Bytes of a document: an answer is smaller by far, and reading one takes some ten times as much memory. Also how much
    of an answer is received at all.
*/
constexpr qint64 maximumDocumentSize = qint64(64) * 1024 * 1024;

/*! How deep elements nest at most: far beyond real documents, and safe on the smallest stacks of threads. */
constexpr int maximumDepth = 256;

/*! Why a document can't be read, and where. */
struct SoapDocumentError
{
    QString message;
    int line;
    int column;
};

/*!
    Reads a document with its namespaces, in any encoding that Qt knows. Returns nothing if that went well.

    What no real document has is refused before Qt's parser sees it: its time grows with the square of the nesting and
    of the attributes, its memory with the product of the elements and of the default attributes that a document type
    declares, and its document is destroyed by a recursion.
*/
std::optional<SoapDocumentError> readDocument(const QByteArray &bytes, QDomDocument &document);

} // namespace ZYX_zglv6

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

/*! The record's file byte by byte, apart from the library's own writer. */
namespace ExchangeTest {

/*! Little-endian. */
QByteArray number32(quint32 number);
QByteArray number64(quint64 number);

/*! The tag 4 and a 64-bit count. */
QByteArray sizeField(quint64 size);

/*! Key and value: the tag, and the payload as it stands in the file. */
QByteArray entry(const QByteArray &key, quint32 tag, const QByteArray &payload);
QByteArray intEntry(const QByteArray &key, int value);

/*! For tags 5 and 7. */
QByteArray sized(const QByteArray &bytes);

QByteArray recordOf(const QList<QByteArray> &entries);

/*! A request with the three dimensions. */
QByteArray requestOf(int width, int height, int depth);

/*! 16-bit values in the machine's byte order. */
QByteArray deepPixels(const QList<quint16> &channels);

} // namespace ExchangeTest

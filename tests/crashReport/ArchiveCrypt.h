// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "crashReport/ArchiveBytes.h"

#include <QtCore/QByteArray>

namespace TestSupport {

/*! The content of an entry behind a password, in the archives' first encryption; with its header of 12 bytes. */
QByteArray encrypted(const QByteArray &content, const QByteArray &password);

/*! Null if the header's last byte tells that \a password is wrong for a content of \a crc. */
QByteArray decrypted(const QByteArray &bytes, const QByteArray &password, quint32 crc);

/*! A stored entry behind a password. */
MadeEntry encryptedEntry(const QByteArray &name, const QByteArray &content, const QByteArray &password);

/*! Whether the installed minizip reads entries behind a password, and whether others can read those it writes. */
bool canMinizipDecrypt();
bool canMinizipEncrypt();

} // namespace TestSupport

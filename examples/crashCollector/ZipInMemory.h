// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>

#include <minizip/unzip.h>

/*! A zip archive in memory, opened for reading. */
class CZipInMemory
{
public:
    /*! \a bytes has to live as long as the object. */
    explicit CZipInMemory(const QByteArray &bytes);
    ~CZipInMemory();

    CZipInMemory(const CZipInMemory &) = delete;
    CZipInMemory &operator=(const CZipInMemory &) = delete;

    /*! Null if the bytes are no archive. */
    unzFile handle() const;

private:
    unzFile m_handle;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QUrl>

/*! A service that describes photographs in words, spoken to in SOAP. */
class CPhotoService
{
    Q_DECLARE_TR_FUNCTIONS(CPhotoService)

public:
    /*! Where it is, such as "http://127.0.0.1:8000/". */
    explicit CPhotoService(QUrl address);

    /*! What the service says of a photograph, or why it says nothing, in words. Events are handled meanwhile. */
    QString describe(const QString &photo, QSize size) const;

private:
    QUrl m_address;
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace ZYX_zglv6 {

class QtSoapHttpTransport;
class QtSoapMessage;

/*! What the collection service says of a report. */
struct ServiceVerdict
{
    bool isAccepted = false;
    std::optional<QVariant> fault; // the text of a fault, of the service or of the way to it
    QString identifier; // of the report at the service, for the log
};

/*! The call of the operation, without the archive. */
QtSoapMessage crashReportMessage();

/*!
    Adds \a archive to \a message and posts it to the service that the preferences file names, or to the product's own.
    Throws std::runtime_error if there is no path of a preferences file.
*/
void postCrashReport(QtSoapHttpTransport &transport, QtSoapMessage &message, const QByteArray &archive);

ServiceVerdict verdictOf(const QtSoapMessage &response);

} // namespace ZYX_zglv6

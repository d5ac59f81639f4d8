// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Elevation.h"

#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace ZyxPlatform {

namespace {

constexpr int dismissed = 126; // what pkexec ends with
constexpr int notAuthorized = 127;

/*! By the octal number at the beginning, as the permissions are read afterwards. */
QStringList modeOption(const QString &permissions)
{
    static const QRegularExpression octal(QStringLiteral("\\A\\s*\\+?([0-7]+)"));
    bool isNumber = false;
    const unsigned mode = octal.match(permissions).captured(1).toUInt(&isNumber, 8) & 07777U;
    if (!isNumber) {
        return {};
    }
    // with fewer than five digits a folder keeps the set-group-ID bit of the one above
    return {QStringLiteral("-m"), QStringLiteral("%1").arg(mode, 5, 8, QLatin1Char('0'))};
}

} // namespace

void prepareElevation()
{
}

void endElevation()
{
}

ElevatedCommand createFolderElevated(const QString &path, const QString &permissions)
{
    const QStringList options = QStringList{QStringLiteral("/bin/mkdir"), QStringLiteral("-p")}
        + modeOption(permissions) + QStringList{QStringLiteral("--")};
    const QString folder = QFileInfo(path).absoluteFilePath(); // the command starts in another folder
    ElevatedCommand command{options.join(u' ') + QStringLiteral(" \"") + folder + u'"'};

    QProcess pkexec;
    pkexec.setProcessChannelMode(QProcess::ForwardedChannels);
    pkexec.start(QStringLiteral("pkexec"), options + QStringList{folder});
    command.isStarted = pkexec.waitForFinished(-1) && pkexec.exitStatus() == QProcess::NormalExit
        && pkexec.exitCode() != dismissed && pkexec.exitCode() != notAuthorized;
    return command;
}

} // namespace ZyxPlatform

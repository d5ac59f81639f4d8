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

QStringList modeOption(const QString &permissions)
{
    static const QRegularExpression octal(QStringLiteral("\\A[0-7]{1,4}\\z"));
    return octal.match(permissions).hasMatch() ? QStringList{QStringLiteral("-m"), permissions} : QStringList();
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

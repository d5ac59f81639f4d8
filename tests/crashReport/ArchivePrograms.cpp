// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchivePrograms.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

namespace TestSupport {

namespace {

constexpr int watchdogMs = 240'000;

QString peerScript()
{
    return QStringLiteral(ARCHIVE_PEER);
}

QJsonObject objectFrom(const QStringList &arguments)
{
    const ProgramRun run = runProgram(u"python3"_qs, arguments);
    return run.exitCode == 0 ? QJsonDocument::fromJson(run.output).object() : QJsonObject();
}

} // namespace

bool hasProgram(const QString &name)
{
    return !QStandardPaths::findExecutable(name).isEmpty();
}

ProgramRun runProgram(const QString &name, const QStringList &arguments, const QString &folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_qs, u"C.UTF-8"_qs);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(name, arguments);
    process.closeWriteChannel(); // a program that asks for a password gets none
    if (!process.waitForFinished(watchdogMs)) {
        process.kill();
        process.waitForFinished();
        return {-1, {}, process.errorString()};
    }
    const bool isNormal = process.exitStatus() == QProcess::NormalExit;
    return {isNormal ? process.exitCode() : -1, process.readAllStandardOutput(),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

QJsonObject readByPython(const QString &archive, const QString &password)
{
    QStringList arguments{peerScript(), u"read"_qs, archive};
    if (!password.isEmpty()) {
        arguments.append(password);
    }
    return objectFrom(arguments);
}

QJsonObject lookByPython(const QString &archive, const QString &name)
{
    return objectFrom({peerScript(), u"look"_qs, archive, name});
}

bool packByPython(const QString &archive, int method, const QString &folder)
{
    return runProgram(u"python3"_qs, {peerScript(), u"make"_qs, archive, QString::number(method), folder}).exitCode
        == 0;
}

QString sha256Of(const QByteArray &content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

} // namespace TestSupport

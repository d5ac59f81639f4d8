// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExchangeFolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

namespace ExchangeTest {

namespace {

QStringList linesOf(const QByteArray &output)
{
    return QString::fromUtf8(output).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

int Run::status() const
{
    return isOver && exitStatus == QProcess::NormalExit ? exitCode : -1000;
}

QString Run::line(const QString &subject) const
{
    QStringList found;
    for (const QString &line : lines) {
        if (line.startsWith(subject + u' ')) {
            found += line.mid(10);
        }
    }
    return found.size() == 1 ? found.front() : u"%1 lines of %2"_qs.arg(found.size()).arg(subject);
}

QByteArray Run::all() const
{
    return output + errors.join(u'\n').toUtf8();
}

ExchangeFolder::ExchangeFolder(const QString &path)
    : m_path(path)
    , m_temporaryFolder(path + u"/temporary")
{
    QDir().mkpath(m_temporaryFolder);
}

QString ExchangeFolder::filePath(const QString &name) const
{
    return m_path + u'/' + name;
}

QStringList ExchangeFolder::leftBehind() const
{
    return QDir(m_temporaryFolder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

Run ExchangeFolder::plugin(const QStringList &arguments) const
{
    return run(QStringLiteral(EXCHANGE_PLUGIN), arguments);
}

Run ExchangeFolder::app(const QStringList &arguments) const
{
    return run(QStringLiteral(EXCHANGE_APP), arguments);
}

Run ExchangeFolder::dump(const QStringList &arguments) const
{
    return run(QStringLiteral(EXCHANGE_DUMP), arguments);
}

Run ExchangeFolder::pluginWithPeer(const QByteArray &way, const QStringList &arguments) const
{
    return run(QStringLiteral(EXCHANGE_PLUGIN), QStringList{u"--app"_qs, peerPath()} + arguments, way);
}

Run ExchangeFolder::run(const QString &program, const QStringList &arguments, const QByteArray &peerWay) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : {u"TMPDIR"_qs, u"TMP"_qs, u"TEMP"_qs}) {
        environment.insert(variable, QDir::toNativeSeparators(m_temporaryFolder));
    }
    environment.insert(u"EXCHANGE_PEER_WAY"_qs, QString::fromUtf8(peerWay));
    environment.insert(u"EXCHANGE_PEER_COPY"_qs, filePath(u"copy"_qs));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_path);
    process.start(program, arguments);
    Run result;
    result.isOver = process.waitForStarted(watchdogMs);
    result.process = quint64(process.processId());
    result.isOver
        = result.isOver && QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, watchdogMs);
    process.kill();
    process.waitForFinished();
    result.exitStatus = process.exitStatus();
    result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.lines = linesOf(result.output);
    result.errors = linesOf(process.readAllStandardError());
    return result;
}

QString appPath()
{
    return QDir::toNativeSeparators(QDir(QCoreApplication::applicationDirPath()).filePath(u"exchange-app"_qs));
}

QString peerPath()
{
    // with the drive, for a process that works on another one
    return QDir::toNativeSeparators(QFileInfo(QStringLiteral(EXCHANGE_PEER)).absoluteFilePath());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace ExchangeTest

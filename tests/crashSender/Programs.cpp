// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Programs.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

namespace CrashTest {

namespace {

QStringList filesIn(const QString &folder, const QString &pattern)
{
    QStringList paths;
    for (const QFileInfo &file : QDir(folder).entryInfoList({pattern}, QDir::Files, QDir::Name)) {
        paths += file.absoluteFilePath();
    }
    return paths;
}

} // namespace

bool Run::isClean() const
{
    return isOver && exitStatus == QProcess::NormalExit && exitCode == 0;
}

QString Run::step(int number) const
{
    const QStringList found = lines.filter(QRegularExpression(u"^%1 "_qs.arg(number)));
    return found.size() == 1 ? found.front() : u"%1 lines for step %2"_qs.arg(found.size()).arg(number);
}

WorkFolder::WorkFolder(const QString &path)
    : m_path(path)
{
    QDir().mkpath(path);
#ifdef Q_OS_WIN
    QProcess::execute(u"reg"_qs, {u"delete"_qs, u"HKCU\\Software\\UtilsDllzglv6 Lightbox"_qs, u"/f"_qs});
#endif
}

QString WorkFolder::path() const
{
    return m_path;
}

QString WorkFolder::crashFiles() const
{
    return m_path + u"/data/CrashReports/";
}

QString WorkFolder::crashTempFiles() const
{
    return m_path + u"/data/CrashReports/temp/";
}

QString WorkFolder::logs() const
{
    return m_path + u"/data/Logs/";
}

QStringList WorkFolder::dumps() const
{
    return filesIn(crashTempFiles(), u"*.dmp"_qs);
}

QStringList WorkFolder::archives() const
{
    return filesIn(crashFiles(), u"*.zip"_qs);
}

bool WorkFolder::writeDump(const QString &name, const QByteArray &bytes) const
{
    return QDir().mkpath(QFileInfo(crashTempFiles() + name).path()) && writeFile(crashTempFiles() + name, bytes);
}

Run WorkFolder::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_path); // where the system may leave a file of a crash
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(program),
                  QStringList{u"--data"_qs, m_path} + arguments);
    Run result;
    result.process = process.processId();
    result.isOver = process.waitForStarted(programWatchdogMs)
        && QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, programWatchdogMs);
    process.kill();
    process.waitForFinished();
    result.exitStatus = process.exitStatus();
    result.exitCode = process.exitCode();
    result.lines = QString::fromLocal8Bit(process.readAllStandardOutput()).remove(u'\r').split(u'\n');
    result.errors = result.lines.join(u'\n') + QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

Run WorkFolder::lightbox(const QStringList &arguments) const
{
    return run(u"lightbox"_qs, QStringList{u"--leave"_qs} + arguments);
}

Run WorkFolder::crashSender(const QStringList &arguments) const
{
    return run(u"crashSender"_qs, arguments);
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

} // namespace CrashTest

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace TestSupport {

namespace {

constexpr char markVariable[] = "ZYX_TEST_FRESH_PROCESS";
constexpr int watchdogMs = 120'000;
constexpr int mostStarts = 3; // Wine on a busy machine refuses one now and then

QString currentTest()
{
    QString test = QString::fromUtf8(QTest::currentTestFunction());
    if (const char *row = QTest::currentDataTag()) {
        test += u':' + QString::fromUtf8(row);
    }
    return test;
}

/*! The reason in the line that Qt Test prints of a skipped function; empty if there is none in \a output. */
QString skipReasonIn(const QString &output)
{
    const QRegularExpression form(QStringLiteral("SKIP   : \\w+::%1\\(%2\\) ([^\\r\\n]+)")
                                      .arg(QRegularExpression::escape(QString::fromUtf8(QTest::currentTestFunction())),
                                           QRegularExpression::escape(QString::fromUtf8(QTest::currentDataTag()))));
    return form.match(output).captured(1);
}

} // namespace

bool isFreshProcess()
{
    return qEnvironmentVariableIsSet(markVariable);
}

FreshResult runInFreshProcess()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromUtf8(markVariable), QStringLiteral("1"));
    // What the process can't remove itself, such as a log that is open to its end, goes with this folder.
    const QTemporaryDir temporaryFolder;
    for (const char *variable : {"TMPDIR", "TMP", "TEMP"}) {
        environment.insert(QString::fromUtf8(variable), QDir::toNativeSeparators(temporaryFolder.path()));
    }

    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(environment);
    for (int attempt = 0; attempt < mostStarts; ++attempt) {
        process.start(QCoreApplication::applicationFilePath(), {currentTest()});
        if (process.waitForStarted(watchdogMs)) {
            break;
        }
    }
    const bool isFinished = process.waitForFinished(watchdogMs);
    if (!isFinished) {
        process.kill();
        process.waitForFinished();
    }
    const QString output = QString::fromLocal8Bit(process.readAll());
    if (isFinished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return {QString(), skipReasonIn(output)};
    }
    return {QStringLiteral("%1 in its own process: %2\n%3").arg(currentTest(), process.errorString(), output),
            QString()};
}

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/PeerPrograms.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

#include <utility>

namespace {

constexpr int watchdogMs = 60'000;

#ifndef GSOAP_SERVICE
#define GSOAP_SERVICE ""
#define GSOAP_CLIENT ""
#endif

bool succeeds(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(watchdogMs)) {
        process.kill();
        process.waitForFinished();
        return false;
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

/*! Several may be installed, and not each has the modules. */
QString interpreterWith(const QString &name, const QStringList &check)
{
    const QString path = qEnvironmentVariable("PATH");
    QStringList folders = path.split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders += u"/usr/bin"_qs;
    folders.removeDuplicates();
    for (const QString &folder : std::as_const(folders)) {
        const QString program = QStandardPaths::findExecutable(name, {folder});
        if (!program.isEmpty() && succeeds(program, check)) {
            return program;
        }
    }
    return {};
}

/*! A script of the folder of peers, for an interpreter that runs \a check; \a package is what that needs. */
PeerProgram scriptPeer(const QString &interpreter, const QStringList &check, const QString &script,
                       const QByteArray &package)
{
    const QString program = interpreterWith(interpreter, check);
    if (program.isEmpty()) {
        return {QString(), {}, "skipped: needs " + package};
    }
    return {program, {QStringLiteral(PEERS_FOLDER "/") + script}, {}};
}

/*! A program that the build makes if it can. */
PeerProgram builtPeer(const QString &path)
{
    return {path, {}, path.isEmpty() ? "skipped: needs gsoap and libgsoap-dev when this is built" : ""};
}

PeerProgram pythonPeer(const QString &module, const QString &script, const QByteArray &package)
{
    return scriptPeer(u"python3"_qs, {u"-c"_qs, u"import "_qs + module}, script, package);
}

} // namespace

QHash<QString, PeerProgram> knownPeers()
{
    const QStringList perlServer{u"-MSOAP::Transport::HTTP"_qs, u"-MHTTP::Daemon"_qs, u"-e1"_qs};
    const QStringList perlClient{u"-MSOAP::Lite"_qs, u"-MLWP::UserAgent"_qs, u"-e1"_qs};
    const QStringList php{u"-r"_qs, u"exit(class_exists('SoapClient') ? 0 : 1);"_qs};
    return {
        {u"spyne"_qs, pythonPeer(u"spyne"_qs, u"photoPeer.py"_qs, "python3-spyne")},
        {u"gSOAP"_qs, builtPeer(QStringLiteral(GSOAP_SERVICE))},
        {u"SOAP::Lite"_qs, scriptPeer(u"perl"_qs, perlServer, u"photoPeer.pl"_qs, "libsoap-lite-perl")},
        {u"zeep client"_qs, pythonPeer(u"zeep"_qs, u"zeepClient.py"_qs, "python3-zeep")},
        {u"suds client"_qs, pythonPeer(u"suds"_qs, u"sudsClient.py"_qs, "python3-suds")},
        {u"gSOAP client"_qs, builtPeer(QStringLiteral(GSOAP_CLIENT))},
        {u"SOAP::Lite client"_qs, scriptPeer(u"perl"_qs, perlClient, u"liteClient.pl"_qs, "libsoap-lite-perl")},
        {u"PHP client"_qs, scriptPeer(u"php"_qs, php, u"phpClient.php"_qs, "php-cli and php-soap")},
    };
}

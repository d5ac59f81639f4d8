// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/ColourService_unix.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>

namespace TestSupport {

namespace {

constexpr char busVariable[] = "DBUS_SYSTEM_BUS_ADDRESS";
constexpr int watchdogMs = 30'000;
const QString connectionName = QStringLiteral("colourService");

/*! What is asked, and of which object. */
QString questionOf(const QDBusMessage &message)
{
    QStringList words{message.path(), message.interface(), message.member()};
    for (const QVariant &argument : message.arguments()) {
        words.append(argument.toString());
    }
    return words.join(u' ');
}

} // namespace

PrivateBus::PrivateBus()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    if (m_daemon.waitForStarted(watchdogMs) && m_daemon.waitForReadyRead(watchdogMs)) {
        qputenv(busVariable, m_daemon.readLine().trimmed());
    }
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

bool PrivateBus::isRunning() const
{
    return m_daemon.state() == QProcess::Running && qEnvironmentVariableIsSet(busVariable);
}

ColourService::ColourService()
    : m_connection(QDBusConnection::connectToBus(qEnvironmentVariable(busVariable), connectionName))
{
}

ColourService::~ColourService()
{
    m_thread.quit();
    m_thread.wait();
    QDBusConnection::disconnectFromBus(connectionName);
}

bool ColourService::start()
{
    const bool isThere = m_connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    moveToThread(&m_thread); // its own, because the one that asks waits
    m_thread.start();
    return isThere && m_connection.registerService(QStringLiteral("org.freedesktop.ColorManager"));
}

QStringList ColourService::questions() const
{
    return m_questions;
}

QString ColourService::introspect(const QString & /*path*/) const
{
    return {};
}

bool ColourService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    m_questions.append(questionOf(message));
    const QVariantList arguments = message.arguments();
    if (message.member() == u"FindDeviceByProperty") {
        const bool isKnown = arguments == QVariantList{QStringLiteral("XRANDR_name"), screenName};
        return silentAt == u"device" || reply(message, connection, isKnown ? device : QVariant());
    }
    const bool isProfiles = arguments.value(1) == QStringLiteral("Profiles");
    const QVariant value = isProfiles ? profiles : fileName;
    const QVariant wrapped = value.isValid() && !hasBareValues ? QVariant::fromValue(QDBusVariant(value)) : value;
    return silentAt == (isProfiles ? u"profiles"_qs : u"fileName"_qs) || reply(message, connection, wrapped);
}

bool ColourService::reply(const QDBusMessage &message, const QDBusConnection &connection, const QVariant &value) const
{
    return connection.send(value.isValid()
                               ? message.createReply(value)
                               : message.createErrorReply(QStringLiteral("org.freedesktop.ColorManager.NotFound"),
                                                          QStringLiteral("there is none")));
}

} // namespace TestSupport

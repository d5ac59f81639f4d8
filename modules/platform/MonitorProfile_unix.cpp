// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/MonitorProfile.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

namespace ZyxPlatform {

namespace {

constexpr int patienceMs = 1000; // for each of three answers
constexpr QLatin1StringView colourService("org.freedesktop.ColorManager");

QScreen *screenOf(quint64 id)
{
    for (const QWindow *window : QGuiApplication::allWindows()) {
        if (window->handle() && window->winId() == id) {
            return window->screen();
        }
    }
    return QGuiApplication::primaryScreen();
}

/*! The first value of the answer; none where there is no service or it refuses. */
QVariant ask(const QString &object, const QString &interface, const QString &method, const QVariantList &arguments)
{
    QDBusMessage question = QDBusMessage::createMethodCall(colourService, object, interface, method);
    question.setArguments(arguments);
    const QDBusMessage answer = QDBusConnection::systemBus().call(question, QDBus::Block, patienceMs);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

QVariant property(const QDBusObjectPath &object, const QString &interface, const QString &name)
{
    const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
    return ask(object.path(), properties, QStringLiteral("Get"), {interface, name}).value<QDBusVariant>().variant();
}

QDBusObjectPath deviceOf(const QScreen &screen)
{
    return ask(QStringLiteral("/org/freedesktop/ColorManager"), colourService, QStringLiteral("FindDeviceByProperty"),
               {QStringLiteral("XRANDR_name"), screen.name()})
        .value<QDBusObjectPath>();
}

/*! The first of a device's profiles is the one in use. */
QDBusObjectPath profileOf(const QDBusObjectPath &device)
{
    const QVariant profiles
        = property(device, QStringLiteral("org.freedesktop.ColorManager.Device"), QStringLiteral("Profiles"));
    const auto list = profiles.value<QDBusArgument>();
    const bool isList = list.currentSignature() == u"ao"; // what is of another kind can't be read, and not left either
    return isList ? qdbus_cast<QList<QDBusObjectPath>>(list).value(0) : QDBusObjectPath();
}

} // namespace

std::string monitorProfile(quint64 window)
{
    const QScreen *screen = screenOf(window);
    if (!screen) {
        return {};
    }
    const QDBusObjectPath device = deviceOf(*screen);
    const QDBusObjectPath profile = device.path().isEmpty() ? device : profileOf(device);
    if (profile.path().isEmpty()) {
        return {};
    }
    const QVariant path
        = property(profile, QStringLiteral("org.freedesktop.ColorManager.Profile"), QStringLiteral("Filename"));
    return path.typeId() == QMetaType::QString ? path.toString().toStdString() : std::string();
}

} // namespace ZyxPlatform

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QThread>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

namespace TestSupport {

/*! A message bus of its own, which takes the place of the system's in processes that are started later. */
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();

    /*! False: there is no program for it. */
    bool isRunning() const;

private:
    QProcess m_daemon;
};

/*!
    Answers on the bus in the colour service's place, from a thread of its own. An answer that is not valid is an error.
*/
class ColourService : public QDBusVirtualObject
{
public:
    QString screenName; // whose device it knows
    QVariant device;
    QVariant profiles;
    QVariant fileName;
    QString silentAt; // the question that is never answered: "device", "profiles" or "fileName"
    bool hasBareValues = false; // properties without the variant around them

    ColourService();
    ~ColourService() override;

    /*! Call it when the answers are set. */
    bool start();

    /*! Read it when all is asked. */
    QStringList questions() const;

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    bool reply(const QDBusMessage &message, const QDBusConnection &connection, const QVariant &value) const;

    QDBusConnection m_connection;
    QThread m_thread;
    QStringList m_questions;
};

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxPrograms_unix.h"

#include <QtCore/QFile>

namespace TestSupport {

KeptVariable::KeptVariable(const char *name)
    : m_name(name)
    , m_value(qgetenv(name))
    , m_wasSet(qEnvironmentVariableIsSet(name))
{
}

KeptVariable::~KeptVariable()
{
    if (m_wasSet) {
        qputenv(m_name, m_value);
    } else {
        qunsetenv(m_name);
    }
}

ErrorBoxPrograms::ErrorBoxPrograms()
{
    qputenv("PATH", QFile::encodeName(m_folder.path()));
    qputenv("DISPLAY", ":none");
    qunsetenv("WAYLAND_DISPLAY");
}

void ErrorBoxPrograms::add(const QString &name, const QByteArray &ending) const
{
    const QByteArray folder = QFile::encodeName(m_folder.path());
    QFile file(filePath(name));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("The program %s could not be written.", qPrintable(file.fileName()));
    }
    file.write("#!/bin/sh\ncd '" + folder + "'\nprintf '%s\\0' \"${0##*/}\" $# \"$@\" >>calls\n" + ending + '\n');
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
}

QString ErrorBoxPrograms::filePath(const QString &name) const
{
    return m_folder.filePath(name);
}

QList<QStringList> ErrorBoxPrograms::calls() const
{
    QFile file(filePath(QStringLiteral("calls")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList words = QString::fromUtf8(file.readAll()).split(u'\0');
    QList<QStringList> calls;
    while (words.size() >= 2) {
        const qsizetype argumentCount = words.at(1).toLongLong();
        calls.append(words.mid(0, 1) + words.mid(2, argumentCount));
        words.remove(0, std::min(words.size(), 2 + argumentCount));
    }
    return calls;
}

} // namespace TestSupport

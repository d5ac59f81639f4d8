// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FakePkexec_unix.h"

#include <QtCore/QFile>

namespace TestSupport {

namespace {

// Keeps each argument with a zero behind it, and a byte that no argument here has behind each call.
constexpr char head[] = R"(#!/bin/sh
calls="${0%/*}/calls"
for argument do printf '%s\000' "$argument"; done >>"$calls"
printf '\001' >>"$calls"
cd /
)";
constexpr char endOfCall = '\1';

} // namespace

FakePkexec::FakePkexec(Program program)
    : m_pathBefore(qgetenv("PATH"))
{
    if (program == Program::Damaged
        && !write("\x7f"
                  "ELF, and then nothing of it")) {
        qFatal("The program could not be made.");
    }
    qputenv("PATH", QFile::encodeName(m_folder.path()));
}

FakePkexec::FakePkexec(const QByteArray &script)
    : FakePkexec(Program::Missing)
{
    if (!write(head + script + '\n')) {
        qFatal("The program could not be made.");
    }
}

FakePkexec::~FakePkexec()
{
    qputenv("PATH", m_pathBefore);
}

QList<QByteArrayList> FakePkexec::calls() const
{
    QFile file(m_folder.filePath(QStringLiteral("calls")));
    QList<QByteArrayList> calls;
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArrayList parts = file.readAll().split(endOfCall);
        for (const QByteArray &part : parts.first(parts.size() - 1)) {
            calls.append(part.chopped(1).split('\0'));
        }
    }
    return calls;
}

bool FakePkexec::write(const QByteArray &program) const
{
    QFile file(m_folder.filePath(QStringLiteral("pkexec")));
    return file.open(QIODevice::WriteOnly) && file.write(program) == program.size()
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace TestSupport

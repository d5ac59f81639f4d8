// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QList>
#include <QtCore/QTemporaryDir>

namespace TestSupport {

/*!
    While it lives, the only program that is found by its name is a pkexec that asks nobody. It keeps what it was called
    with, and starts in the root folder: the real one doesn't stay in the caller's either.
*/
class FakePkexec
{
public:
    enum class Program { Missing, Damaged }; // the second is a file that the system can't start

    explicit FakePkexec(Program program);
    /*! \a script is what its shell does; the command to carry out is "$@". */
    explicit FakePkexec(const QByteArray &script);
    ~FakePkexec();

    FakePkexec(const FakePkexec &) = delete;
    FakePkexec &operator=(const FakePkexec &) = delete;

    /*! Each call's arguments. */
    QList<QByteArrayList> calls() const;

private:
    bool write(const QByteArray &program) const;

    QTemporaryDir m_folder;
    QByteArray m_pathBefore;
};

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace TestSupport {

/*! A variable of the environment that gets its old value back. */
class KeptVariable
{
public:
    explicit KeptVariable(const char *name);
    ~KeptVariable();

    KeptVariable(const KeptVariable &) = delete;
    KeptVariable &operator=(const KeptVariable &) = delete;

private:
    const char *m_name;
    QByteArray m_value;
    bool m_wasSet;
};

/*!
    Message box programs that only note how they were called. While it lives, the PATH is a folder of theirs alone,
    and the variables claim an X display.
*/
class ErrorBoxPrograms
{
public:
    ErrorBoxPrograms();

    /*! Adds the program \a name, which ends with the shell commands \a ending. */
    void add(const QString &name, const QByteArray &ending = "exit 0") const;

    /*! Path of \a name in the folder. */
    QString filePath(const QString &name) const;

    /*! The calls so far: each the program's name and its arguments. */
    QList<QStringList> calls() const;

private:
    QTemporaryDir m_folder;
    KeptVariable m_path{"PATH"};
    KeptVariable m_display{"DISPLAY"};
    KeptVariable m_waylandDisplay{"WAYLAND_DISPLAY"};
};

} // namespace TestSupport

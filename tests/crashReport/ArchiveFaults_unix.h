// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <functional>

namespace TestSupport {

/*! Calls of the C library that take a path, or a file that was opened by one; archives use pread() and pwrite(). */
enum class Call { Open, Read, Write, ReadAt, WriteAt, Close, MakeFolder, Remove };

/*!
    While it lives, one call fails, or something happens right in front of it. The program has these functions of its
    own, in front of the C library's. One at a time.
*/
class Fault
{
public:
    /*! The \a nth call, from 1, that is of a path starting with \a start fails with \a error. */
    Fault(const QString &start, Call call, int nth, int error);
    /*! In front of the \a nth call \a action is done; calls within it are not counted. */
    Fault(const QString &start, Call call, int nth, std::function<void()> action);
    /*! Nothing fails: for sizes() alone. */
    Fault(const QString &start, Call call);
    ~Fault();

    Fault(const Fault &) = delete;
    Fault &operator=(const Fault &) = delete;

    bool hasStruck() const;

    /*! How many bytes each such call asked for; 0 of calls without a size. */
    QList<std::size_t> sizes() const;
};

/*! How many files the process has open. */
int openFileCount();

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::Call)

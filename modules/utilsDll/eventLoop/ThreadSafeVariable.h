// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QReadWriteLock>

#include <utility>

/*! A value that any thread may read and write: many readers at a time, or one writer. A copy has a lock of its own. */
template <typename T>
struct ThreadSafeVariable
{
    explicit ThreadSafeVariable(T value = T())
        : m_value(std::move(value))
    {
    }

    ThreadSafeVariable(const ThreadSafeVariable &other)
        : m_value(other.value())
    {
    }

    ThreadSafeVariable &operator=(const ThreadSafeVariable &other)
    {
        setValue(other.value());
        return *this;
    }

    ~ThreadSafeVariable() = default;

    T value() const
    {
        const QReadLocker locker(&m_lock);
        return m_value;
    }

    void setValue(T value)
    {
        const QWriteLocker locker(&m_lock);
        m_value = std::move(value);
    }

private:
    T m_value;
    mutable QReadWriteLock m_lock{QReadWriteLock::Recursive};
};

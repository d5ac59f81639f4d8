// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QTypeInfo>
#include <QtCore/qglobal.h>

#include <utility>

namespace ZYX_zglv6 {

/*!
    Owns an object on the heap together with its copies: the last of them deletes it. T needs a virtual destructor if
    objects of derived classes are held. The object may be null.

    The count is a plain integer on the heap, so a pointer and all its copies belong to one thread.
*/
template <typename T>
class QtSmartPtr
{
public:
    /*! Takes \a object over. */
    explicit QtSmartPtr(T *object = nullptr);
    QtSmartPtr(const QtSmartPtr &other);
    QtSmartPtr &operator=(const QtSmartPtr &other); // NOLINT(bugprone-unhandled-self-assignment): it compares counts
    ~QtSmartPtr();

    T *get() const;
    T &operator*() const;
    T *operator->() const;
    explicit operator bool() const;

protected:
    /*!
        How many own the object. A derived class that sets it to 0 leaves the object to someone else; only while there
        is no other owner, as each would delete the count.
    */
    int &count();

private:
    void release();

    int *m_count;
    T *m_object;
};

// Outside of the class, so that they are not inline: compilers for Windows export no inline functions of an
// instantiation.

template <typename T>
QtSmartPtr<T>::QtSmartPtr(T *object)
    : m_count(new int(1))
    , m_object(object)
{
}

template <typename T>
QtSmartPtr<T>::QtSmartPtr(const QtSmartPtr &other)
    : m_count(other.m_count)
    , m_object(other.m_object)
{
    if (*m_count != 0) {
        ++*m_count;
    }
}

template <typename T>
QtSmartPtr<T> &QtSmartPtr<T>::operator=(const QtSmartPtr &other)
{
    if (m_count != other.m_count) {
        QtSmartPtr copy(other); // first: the other one may be owned by the object that goes
        std::swap(m_count, copy.m_count);
        std::swap(m_object, copy.m_object);
    }
    return *this;
}

template <typename T>
QtSmartPtr<T>::~QtSmartPtr()
{
    release();
}

template <typename T>
T *QtSmartPtr<T>::get() const
{
    return m_object;
}

template <typename T>
T &QtSmartPtr<T>::operator*() const
{
    return *m_object;
}

template <typename T>
T *QtSmartPtr<T>::operator->() const
{
    return m_object;
}

template <typename T>
QtSmartPtr<T>::operator bool() const
{
    return m_object != nullptr;
}

template <typename T>
int &QtSmartPtr<T>::count()
{
    return *m_count;
}

/*! Not to be inlined: some compilers then warn of a use after free, and don't see that only the last owner frees. */
template <typename T>
Q_NEVER_INLINE void QtSmartPtr<T>::release()
{
    if (*m_count == 0) {
        delete m_count;
    } else if (--*m_count == 0) {
        delete m_count;
        delete m_object;
    }
}

} // namespace ZYX_zglv6

QT_BEGIN_NAMESPACE

template <typename T>
Q_DECLARE_TYPEINFO_BODY(ZYX_zglv6::QtSmartPtr<T>, Q_RELOCATABLE_TYPE);

QT_END_NAMESPACE

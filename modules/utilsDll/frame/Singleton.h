// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qglobal.h>

/*!
    Base of classes with one object for the whole process: class CThing : public Singleton<CThing>.

    The object lives in static storage: built by the first call of instance(), from whatever thread that comes, and
    destroyed at process exit, in reverse order of construction. A class with a private constructor makes
    Singleton<CThing> a friend.

    A class that the library exports has one object for all modules only if the library alone instantiates the template:
    its header declares "extern template class UTILSDLL_EXPORT_TEMPLATE Singleton<CThing>;", its source defines it.
*/
template <typename T>
class Singleton
{
    Q_DISABLE_COPY_MOVE(Singleton)

public:
    static T &instance();

protected:
    Singleton() = default;
    ~Singleton() = default;
};

// Outside of the class, so that it is not inline: compilers for Windows export no inline function of an instantiation.
template <typename T>
T &Singleton<T>::instance()
{
    static T object;
    return object;
}

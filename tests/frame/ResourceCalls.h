// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

namespace TestSupport {

/*! What a module asked Qt to do with one of its collections of embedded files. */
struct ResourceCall
{
    enum Kind { Register, Unregister };

    Kind kind;
    int version;
    const unsigned char *tree; // tells the collections apart

    friend bool operator==(const ResourceCall &, const ResourceCall &) = default;
};

/*! What qResourceFeatureZlib() gives while the calls of the module under test are watched: Qt's own is 0. */
inline constexpr unsigned char zlibFeature = 4;

/*!
    The calls that the library has made so far. They reach Qt all the same, with the version that Qt knows; on Windows
    from the first call of this function on, elsewhere from the loading of the library on.
*/
std::vector<ResourceCall> resourceCalls();

/*! Calls \a callback after each of the library's calls; an empty one ends that. */
void onResourceCall(const std::function<void()> &callback);

/*! True if resourceCalls() has the calls of the library's loading too. */
bool isLoadingWatched();

} // namespace TestSupport

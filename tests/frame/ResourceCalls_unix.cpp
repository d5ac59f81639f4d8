// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ResourceCalls.h"

#include <QtCore/qglobal.h>

#include <array>
#include <cstring>
#include <dlfcn.h>

// The library finds these before Qt's own, because the program comes first where a module looks for a name. They run
// before the statics of the program are built: the record is one that needs no building.

namespace {

constexpr std::size_t mostCalls = 256;
constinit std::array<TestSupport::ResourceCall, mostCalls> calls{};
constinit std::size_t callCount = 0;
constinit std::function<void()> *observer = nullptr;

using Function = bool (*)(int, const unsigned char *, const unsigned char *, const unsigned char *);

/*! Qt's own modules register collections too. */
bool isOfTheLibrary(const unsigned char *tree)
{
    Dl_info module{};
    return dladdr(tree, &module) != 0 && std::strstr(module.dli_fname, "UtilsDllzglv6") != nullptr;
}

void record(const TestSupport::ResourceCall &call)
{
    if (callCount < mostCalls && isOfTheLibrary(call.tree)) {
        calls[callCount++] = call;
    }
}

void notify()
{
    if (observer != nullptr) {
        (*observer)();
    }
}

Function qtFunction(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {
extern Q_DECL_EXPORT const unsigned char qt_resourceFeatureZlib;
const unsigned char qt_resourceFeatureZlib = TestSupport::zlibFeature;
}

Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                                         const unsigned char *data);
Q_DECL_EXPORT bool qUnregisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                                           const unsigned char *data);

bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                           const unsigned char *data)
{
    record({TestSupport::ResourceCall::Register, version, tree});
    const bool isDone = qtFunction("_Z21qRegisterResourceDataiPKhS0_S0_")(version, tree, names, data);
    notify();
    return isDone;
}

bool qUnregisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                             const unsigned char *data)
{
    record({TestSupport::ResourceCall::Unregister, version, tree});
    const int known = version > 3 ? version - TestSupport::zlibFeature : version;
    const bool isDone = qtFunction("_Z23qUnregisterResourceDataiPKhS0_S0_")(known, tree, names, data);
    notify();
    return isDone;
}

namespace TestSupport {

std::vector<ResourceCall> resourceCalls()
{
    return {calls.cbegin(), calls.cbegin() + callCount};
}

void onResourceCall(const std::function<void()> &callback)
{
    static std::function<void()> current;
    current = callback;
    observer = callback ? &current : nullptr;
}

bool isLoadingWatched()
{
    return true;
}

} // namespace TestSupport

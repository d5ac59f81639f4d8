// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ResourceCalls.h"

#include "frame/ImportTable_win.h"

// The library calls Qt through its table of imported addresses: the entries of the three functions are replaced there.

namespace {

using Function = bool (*)(int, const unsigned char *, const unsigned char *, const unsigned char *);

std::vector<TestSupport::ResourceCall> calls;
std::function<void()> observer;
Function registerInQt = nullptr;
Function unregisterInQt = nullptr;

void notify()
{
    if (observer) {
        observer();
    }
}

bool registerData(int version, const unsigned char *tree, const unsigned char *names, const unsigned char *data)
{
    calls.push_back({TestSupport::ResourceCall::Register, version, tree});
    const bool isDone = registerInQt(version, tree, names, data);
    notify();
    return isDone;
}

bool unregisterData(int version, const unsigned char *tree, const unsigned char *names, const unsigned char *data)
{
    calls.push_back({TestSupport::ResourceCall::Unregister, version, tree});
    const int known = version > 3 ? version - TestSupport::zlibFeature : version;
    const bool isDone = unregisterInQt(known, tree, names, data);
    notify();
    return isDone;
}

unsigned char zlibFeatureOfTest()
{
    return TestSupport::zlibFeature;
}

template <typename Type>
Type replaced(const char *part, Type function)
{
    return reinterpret_cast<Type>(TestSupport::replaceImport(part, reinterpret_cast<void *>(function)));
}

} // namespace

namespace TestSupport {

std::vector<ResourceCall> resourceCalls()
{
    if (registerInQt == nullptr) {
        registerInQt = replaced("qRegisterResourceData", &registerData);
        unregisterInQt = replaced("qUnregisterResourceData", &unregisterData);
        replaced("qResourceFeatureZlib", &zlibFeatureOfTest);
    }
    return calls;
}

void onResourceCall(const std::function<void()> &callback)
{
    resourceCalls(); // watches from here on
    observer = callback;
}

bool isLoadingWatched()
{
    return false;
}

} // namespace TestSupport

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/TaskMemory_win.h"

#include <QtCore/QSet>

#include <windows.h>

#include <objidl.h>

#include <algorithm>
#include <array>

namespace TestSupport {

namespace {

QT_WARNING_PUSH
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor") // interfaces of COM have no virtual destructors

/*! Sees what is freed: an address alone does not tell, the next block may get it. */
class Spy final : public IMallocSpy
{
public:
    QSet<const void *> blocks;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        if (!IsEqualIID(id, IID_IMallocSpy) && !IsEqualIID(id, IID_IUnknown)) {
            return E_NOINTERFACE;
        }
        *object = this;
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override
    {
        return 1; // COM asks it until the process ends
    }

    STDMETHODIMP_(ULONG) Release() override
    {
        return 1;
    }

    STDMETHODIMP_(void *) PreFree(void *block, BOOL /*isSpied*/) override
    {
        blocks.remove(block);
        return block;
    }

    // What changes nothing.

    STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T size) override
    {
        return size;
    }

    STDMETHODIMP_(void *) PostAlloc(void *block) override
    {
        return block;
    }

    STDMETHODIMP_(void) PostFree(BOOL /*isSpied*/) override
    {
    }

    STDMETHODIMP_(SIZE_T) PreRealloc(void *block, SIZE_T size, void **asked, BOOL /*isSpied*/) override
    {
        *asked = block;
        return size;
    }

    STDMETHODIMP_(void *) PostRealloc(void *block, BOOL /*isSpied*/) override
    {
        return block;
    }

    STDMETHODIMP_(void *) PreGetSize(void *block, BOOL /*isSpied*/) override
    {
        return block;
    }

    STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T size, BOOL /*isSpied*/) override
    {
        return size;
    }

    STDMETHODIMP_(void *) PreDidAlloc(void *block, BOOL /*isSpied*/) override
    {
        return block;
    }

    STDMETHODIMP_(int) PostDidAlloc(void * /*block*/, BOOL /*isSpied*/, int isAllocated) override
    {
        return isAllocated;
    }

    STDMETHODIMP_(void) PreHeapMinimize() override
    {
    }

    STDMETHODIMP_(void) PostHeapMinimize() override
    {
    }
};

QT_WARNING_POP

/*! Never taken away again: COM keeps a spy while a block is left that it has seen made. */
Spy &spy()
{
    static Spy *const registered = [] {
        auto *made = new Spy;
        if (FAILED(CoRegisterMallocSpy(made))) {
            qFatal("COM's memory can't be watched.");
        }
        return made;
    }();
    return *registered;
}

} // namespace

TaskMemory::TaskMemory()
{
    spy().blocks.clear();
}

void *TaskMemory::allocate(std::size_t size)
{
    void *block = CoTaskMemAlloc(size);
    spy().blocks.insert(block);
    return block;
}

int TaskMemory::blocks() const
{
    return int(spy().blocks.size());
}

bool isAllocated(const void *block)
{
    std::array<HANDLE, 64> heaps{};
    const auto end = heaps.begin() + std::min<DWORD>(GetProcessHeaps(DWORD(heaps.size()), heaps.data()), heaps.size());
    return std::any_of(heaps.begin(), end, [block](HANDLE heap) { return HeapValidate(heap, 0, block) != FALSE; });
}

} // namespace TestSupport

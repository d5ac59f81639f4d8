// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

#include <cstddef>

namespace TestSupport {

/*! Blocks that whoever gets them has to free with CoTaskMemFree(). One at a time. */
class TaskMemory
{
public:
    TaskMemory();

    Q_DISABLE_COPY_MOVE(TaskMemory)

    void *allocate(std::size_t size);

    /*! How many are not freed yet. */
    int blocks() const;
};

/*! Whether one of the process's heaps has \a block in use. */
bool isAllocated(const void *block);

} // namespace TestSupport

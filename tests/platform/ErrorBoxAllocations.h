// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

namespace TestSupport {

/*! Counts the pieces of memory that the thread which made it takes from the heap, until stop(). One at a time. */
class ErrorBoxAllocations
{
public:
    ErrorBoxAllocations();
    ~ErrorBoxAllocations();

    ErrorBoxAllocations(const ErrorBoxAllocations &) = delete;
    ErrorBoxAllocations &operator=(const ErrorBoxAllocations &) = delete;

    int stop();

    /*! For the functions in the heap's place. */
    static void countOne();

    /*! False where a checker of memory has put its own functions in the heap's place. */
    static bool areCounted();

    /*! True if what libraries take counts too, not only what the program itself takes by operator new. */
    static bool areCountedInLibraries();
};

} // namespace TestSupport

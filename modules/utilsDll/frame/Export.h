// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*!
    Marks what the library promises to its hosts; everything without it stays inside. Without Qt, because the exchange
    with plug-ins is. Who compiles sources of the library into a program of its own defines UTILSDLL_BUILD.
*/
#if !defined(_WIN32)
#define UTILSDLL_EXPORT __attribute__((visibility("default")))
#elif defined(UTILSDLL_BUILD)
#define UTILSDLL_EXPORT __declspec(dllexport)
#else
#define UTILSDLL_EXPORT __declspec(dllimport)
#endif

/*!
    For an explicit instantiation that hosts share with the library: the one marks its declaration in a header,
    "extern template class UTILSDLL_EXPORT_TEMPLATE T<X>;", the other its definition in a source. Visual C++ wants the
    export where the instantiation is defined, the other compilers where it is declared.
*/
#if defined(_MSC_VER) && defined(UTILSDLL_BUILD)
#define UTILSDLL_EXPORT_TEMPLATE
#define UTILSDLL_EXPORT_TEMPLATE_DEFINITION UTILSDLL_EXPORT
#else
#define UTILSDLL_EXPORT_TEMPLATE UTILSDLL_EXPORT
#define UTILSDLL_EXPORT_TEMPLATE_DEFINITION
#endif

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/FunctionName.h"

namespace ZYX_zglv6 {

/*!
    Tells the log, if there is one, and the Qt debug channel that a condition failed; what the macros below call.
    \a form is the macro's word, "ASSERT in " and its like; \a text is null where the macro takes none.
*/
UTILSDLL_EXPORT void reportFailedAssertion(const char *function, const char *form, const char *file, int line,
                                           const char *text = nullptr);

} // namespace ZYX_zglv6

#define ZYX_REPORT_FAILED_ASSERTION(...)                                                                               \
    ZYX_DECLARE_FUNCTION_NAME(zyxFunctionName);                                                                        \
    ::ZYX_zglv6::reportFailedAssertion(zyxFunctionName.data(), __VA_ARGS__)

/*! Reports a false condition and goes on, in every build. No assertion ever stops the program. */
#define ASSERT(condition)                                                                                              \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            ZYX_REPORT_FAILED_ASSERTION("ASSERT in ", __FILE__, __LINE__);                                             \
        }                                                                                                              \
    } while (false)

/*! Reports a false condition with \a text, in UTF-8, and leaves the function. */
#define ASSERT_X_RETURN(condition, text)                                                                               \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            ZYX_REPORT_FAILED_ASSERTION("ASSERT_X_RETURN in ", __FILE__, __LINE__, text);                              \
            return;                                                                                                    \
        }                                                                                                              \
    } while (false)

/*! Reports a false condition with \a text, in UTF-8, and returns \a value. */
#define ASSERT_X_RETURN_VALUE(condition, value, text)                                                                  \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            ZYX_REPORT_FAILED_ASSERTION("ASSERT_X_RETURN_VALUE in ", __FILE__, __LINE__, text);                        \
            return value;                                                                                              \
        }                                                                                                              \
    } while (false)

/*! Reports like ASSERT_X_RETURN and goes on: for the places where the rest of the function must run all the same. */
#define ASSERT_X_RETURN_BUT_GO_ON(condition, text)                                                                     \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            ZYX_REPORT_FAILED_ASSERTION("ASSERT_X_RETURN in ", __FILE__, __LINE__, text);                              \
        }                                                                                                              \
    } while (false)

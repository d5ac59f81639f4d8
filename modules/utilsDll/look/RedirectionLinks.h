// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>

namespace ZYX_zglv6 {

class CLanguageManager;

} // namespace ZYX_zglv6

/*! The web addresses that the program opens: all lead to the redirect service of the product's web site. */
class UTILSDLL_EXPORT CRedirectionLinks
{
public:
    enum zyxLinkType : int {
        linkHome,
        linkImprovementProgram,
        linkSupport,
        linkLearning,
        linkShop,
        linkPatents,
        linkHelp,
        linkUserGuide,
    };

    /*!
        The address of \a type in the language that \a manager has loaded, not in one that waits for the next start.
        A value that is no type gives the address without a page. Any thread.
    */
    static QString get(zyxLinkType type, const ZYX_zglv6::CLanguageManager &manager);
};

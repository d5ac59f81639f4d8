// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/RedirectionLinks.h"

#include "utilsDll/frame/ProductData_p.h"
#include "utilsDll/look/LanguageManager.h"

#include <map>

namespace {

/*! Whether the page is about this product; the others are about all of its maker's. */
bool isProductLink(CRedirectionLinks::zyxLinkType type)
{
    return type != CRedirectionLinks::linkImprovementProgram && type != CRedirectionLinks::linkPatents;
}

QString languagePart(unsigned int language, bool isProduct)
{
    static const std::map<unsigned int, QString> codes{
        {1036, u"fr"_qs}, {1031, u"de"_qs}, {1041, u"ja"_qs}, {2052, u"zh-cn"_qs}};
    const auto found = codes.find(language);
    if (found == codes.end()) {
        return isProduct ? u"en"_qs : u"intl"_qs;
    }
    if (!isProduct && found->second == u"ja") {
        return u"jp"_qs; // the maker's own pages are kept under the code of the country
    }
    return found->second;
}

QString nameOf(CRedirectionLinks::zyxLinkType type)
{
    switch (type) {
    case CRedirectionLinks::linkHome:
        return u"home"_qs;
    case CRedirectionLinks::linkImprovementProgram:
        return u"improvement_program"_qs;
    case CRedirectionLinks::linkSupport:
        return u"support"_qs;
    case CRedirectionLinks::linkLearning:
        return u"learning"_qs;
    case CRedirectionLinks::linkShop:
        return u"shop"_qs;
    case CRedirectionLinks::linkPatents:
        return u"patents"_qs;
    case CRedirectionLinks::linkHelp:
        return u"help"_qs;
    case CRedirectionLinks::linkUserGuide:
        return u"user-guide.pdf"_qs;
    }
    return {};
}

} // namespace

QString CRedirectionLinks::get(zyxLinkType type, const ZYX_zglv6::CLanguageManager &manager)
{
    const bool isProduct = isProductLink(type);
    const QString folder = u"https://%1/%2/redirect/%3/"_qs.arg(
        ZYX_zglv6::webHost(), languagePart(manager.loadedLanguageID(), isProduct), isProduct ? u"gl6"_qs : u"gl"_qs);
    return folder + nameOf(type);
}

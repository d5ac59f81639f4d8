// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "GeneratedText.h"

#include "soapH.h"
#include "text.nsmap"

#include <memory>
#include <sstream>

namespace {

struct FreeSoap
{
    void operator()(soap *context) const
    {
        soap_destroy(context);
        soap_end(context);
        soap_free(context);
    }
};

using Context = std::unique_ptr<soap, FreeSoap>;

} // namespace

std::string writeGeneratedText(const std::string &text)
{
    std::ostringstream stream;
    const Context context(soap_new1(SOAP_C_UTFSTRING));
    context->os = &stream;
    b__SendText request;
    request.text = text;
    soap_write_b__SendText(context.get(), &request);
    return stream.str();
}

std::string readGeneratedText(const std::string &document)
{
    std::istringstream stream(document);
    const Context context(soap_new1(SOAP_C_UTFSTRING));
    context->is = &stream;
    b__SendText request;
    return soap_read_b__SendText(context.get(), &request) == SOAP_OK ? request.text : std::string();
}

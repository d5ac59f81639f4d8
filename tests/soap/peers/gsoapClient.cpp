// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT

// A client on gSOAP: gsoapClient URL. Calls echo, add, negate and rotate and prints what it understood, a line each.

#include "photoPeer.nsmap"
#include "photoPeerH.h"

#include <cstdio>
#include <string>

namespace {

/*! Whether a call got its answer; prints the fault if not. */
bool isAnswered(soap *client, int result)
{
    if (result == SOAP_OK) {
        return true;
    }
    std::printf("fault %s: %s\n", *soap_faultcode(client), *soap_faultstring(client));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        return 2;
    }
    soap *client = soap_new1(SOAP_C_UTFSTRING);
    client->connect_timeout = client->recv_timeout = client->send_timeout = 20;
    const char *url = argv[1];

    std::string text;
    if (isAnswered(client, soap_call_photo__echo(client, url, "", "\u00c4pfel <&> \u65e5\u672c\u8a9e", text))) {
        std::printf("echo %s\n", text.c_str());
    }
    int sum = 0;
    if (isAnswered(client, soap_call_photo__add(client, url, "", 2147483647, -40, sum))) {
        std::printf("add %d\n", sum);
    }
    bool negated = false;
    if (isAnswered(client, soap_call_photo__negate(client, url, "", false, negated))) {
        std::printf("negate %s\n", negated ? "true" : "false");
    }
    photo__Photo photo;
    photo.name = "M\u00f6we.jpg";
    photo.width = 6000;
    photo.height = 4000;
    photo.isColour = true;
    photo__rotateResponse rotated;
    if (isAnswered(client, soap_call_photo__rotate(client, url, "", &photo, &rotated))) {
        const photo__Photo &result = rotated.result;
        std::printf("rotate %s %d %d %s\n", result.name.c_str(), result.width, result.height,
                    result.isColour ? "true" : "false");
    }
    soap_destroy(client);
    soap_end(client);
    soap_free(client);
    return 0;
}

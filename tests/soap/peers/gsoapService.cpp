// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT

// The photo service on gSOAP, rpc/encoded. Prints its port; ends when its standard input ends.

#include "photoPeer.nsmap"
#include "photoPeerH.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

#include <arpa/inet.h>
#include <poll.h>
#include <unistd.h>

int photo__echo(soap *, std::string text, std::string &result)
{
    result = std::move(text);
    return SOAP_OK;
}

int photo__add(soap *, int first, int second, int &result)
{
    result = first + second;
    return SOAP_OK;
}

int photo__negate(soap *, bool value, bool &result)
{
    result = !value;
    return SOAP_OK;
}

int photo__rotate(soap *, photo__Photo *photo, photo__rotateResponse *response)
{
    response->result = *photo;
    std::swap(response->result.width, response->result.height);
    return SOAP_OK;
}

int photo__reverse(soap *, ArrayOfInt *numbers, photo__reverseResponse *response)
{
    std::reverse(numbers->__ptr, numbers->__ptr + numbers->__size);
    response->result = *numbers;
    return SOAP_OK;
}

int photo__album(soap *service, int count, photo__albumResponse *response)
{
    ArrayOfPhoto &album = response->result;
    album.__size = count;
    album.__ptr = soap_new_photo__Photo(service, count);
    for (int i = 0; i < count; ++i) {
        photo__Photo &photo = album.__ptr[i];
        photo.name = "photo " + std::to_string(i);
        photo.width = 100 + i;
        photo.height = 10 * i;
        photo.isColour = i % 2 == 1;
    }
    return SOAP_OK;
}

int photo__panorama(soap *service, ArrayOfPhoto *photos, photo__panoramaResponse *response)
{
    if (photos == nullptr || photos->__size == 0) {
        return soap_sender_fault(service, "no photos", nullptr);
    }
    photo__Photo &panorama = response->result;
    panorama = photos->__ptr[0];
    panorama.name = "panorama";
    for (int i = 1; i < photos->__size; ++i) {
        const photo__Photo &photo = photos->__ptr[i];
        panorama.width += photo.width;
        panorama.height = std::min(panorama.height, photo.height);
        panorama.isColour = panorama.isColour && photo.isColour;
    }
    return SOAP_OK;
}

int photo__whoCalls(soap *service, std::string &result)
{
    const photo__Caller *caller = service->header != nullptr ? service->header->photo__caller : nullptr;
    result = caller != nullptr ? caller->user + " at " + std::to_string(caller->machine) : "nobody";
    return SOAP_OK;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the generator fixes the parameters
int photo__fail(soap *service, std::string code, std::string &)
{
    const char *detail = "<photo:limit xmlns:photo=\"urn:photoPeer\">1</photo:limit>";
    return code == "Client" ? soap_sender_fault(service, "Gr\u00f6\u00dfe < 1", detail)
                            : soap_receiver_fault(service, "Gr\u00f6\u00dfe < 1", detail);
}

int main()
{
    soap *service = soap_new1(SOAP_C_UTFSTRING);
    service->accept_timeout = service->recv_timeout = service->send_timeout = 20;
    const SOAP_SOCKET listener = soap_bind(service, "127.0.0.1", 0, 10);
    sockaddr_in address{};
    socklen_t length = sizeof(address);
    if (!soap_valid_socket(listener) || getsockname(listener, reinterpret_cast<sockaddr *>(&address), &length) != 0) {
        soap_print_fault(service, stderr);
        return 1;
    }
    std::printf("listening on %d\n", ntohs(address.sin_port));
    std::fflush(stdout);

    pollfd events[] = {{STDIN_FILENO, POLLIN, 0}, {listener, POLLIN, 0}};
    while (poll(events, 2, -1) > 0 && events[0].revents == 0) {
        if (soap_valid_socket(soap_accept(service))) {
            soap_serve(service);
        }
        soap_destroy(service);
        soap_end(service);
    }
    soap_free(service);
    return 0;
}

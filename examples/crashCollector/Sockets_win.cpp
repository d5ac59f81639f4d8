// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Sockets.h"

#include <winsock2.h>

bool isSocketReady(qintptr socket, Readiness readiness, int milliseconds)
{
    WSAPOLLFD question{SOCKET(socket), SHORT(readiness == Readiness::ToRead ? POLLRDNORM : POLLWRNORM), 0};
    return WSAPoll(&question, 1, milliseconds) > 0;
}

void closeSocket(qintptr socket)
{
    shutdown(SOCKET(socket), SD_BOTH);
    closesocket(SOCKET(socket));
}

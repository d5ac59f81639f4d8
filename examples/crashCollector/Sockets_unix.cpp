// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Sockets.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

bool isSocketReady(qintptr socket, Readiness readiness, int milliseconds)
{
    pollfd question{int(socket), short(readiness == Readiness::ToRead ? POLLIN : POLLOUT), 0};
    return poll(&question, 1, milliseconds) > 0;
}

void closeSocket(qintptr socket)
{
    shutdown(int(socket), SHUT_RDWR);
    close(int(socket));
}

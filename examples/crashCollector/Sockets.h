// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

enum class Readiness { ToRead, ToWrite };

/*! Waits at most \a milliseconds. True if there is an end or an error, too: the next call tells which. */
bool isSocketReady(qintptr socket, Readiness readiness, int milliseconds);

/*! Ends the connection in both directions. */
void closeSocket(qintptr socket);

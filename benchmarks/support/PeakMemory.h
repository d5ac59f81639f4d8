// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

#include <functional>

/*! The most memory that this process has had so far, in MiB; 0 where the system does not tell. */
double peakOfThisProcess();

/*!
    What a piece of work takes beyond a process that is about to do it, in MiB: this program is started once more, with
    "--peak" and \a arguments, and there answers by printPeak().
*/
double peakInOwnProcess(const QStringList &arguments);

/*! Prints what \a work takes. The exit status: 1 where it fails. */
int printPeak(const std::function<bool()> &work);

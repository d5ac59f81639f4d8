// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QPixmap>

#include <functional>

class QDialog;

/*!
    Calls \a open, which shows a dialog and may wait for its end; gives it to \a visit as soon as its content is there,
    and rejects it. False if none has appeared within some seconds.
*/
bool visitDialog(const std::function<void()> &open, const std::function<void(QDialog &)> &visit);

/*! The same with a picture of it; null if none has appeared. */
QPixmap pictureOfDialog(const std::function<void()> &open);

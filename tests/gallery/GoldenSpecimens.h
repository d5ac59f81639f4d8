// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <functional>

/*! A part whose painting is kept as an image. */
struct GoldenSpecimen
{
    QString name;
    std::function<QImage()> paint; // in 32 bits a pixel, in the ratio of the process
};

/*! All of them, without letters: those differ between systems. */
QList<GoldenSpecimen> goldenSpecimens();

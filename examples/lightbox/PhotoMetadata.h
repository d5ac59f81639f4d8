// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! What a photograph tells of the camera that took it; empty or 0 where it tells nothing. */
struct PhotoMetadata
{
    bool hasCamera() const;
    bool hasLens() const;

    QString make;
    QString model;
    QString lens; // its name
    QString lensId; // as the catalogue of calibration modules writes it; not all makers tell one
    double focalLength = 0.0; // in millimetres
    bool isRaw = false;
    QString error; // why nothing could be read; data that are broken or missing are none
};

/*! Reads it from the file \a path, and only from there. More than 512 MiB are an error. One thread at a time. */
PhotoMetadata readPhotoMetadata(const QString &path);

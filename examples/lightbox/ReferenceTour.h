// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class CFilmHistory;
class CPresetLibrary;

// What is in the data, each in words.

QString tourPresets(const CPresetLibrary &library);
QString tourTags(const CPresetLibrary &library);
/*! The first line of the note on the first look that has one. */
QString tourNote(const CPresetLibrary &library);
QString tourHistory(const CFilmHistory &history);

/*! Which calibration modules serve \a photo. */
QString tourCalibration(const QString &photo);

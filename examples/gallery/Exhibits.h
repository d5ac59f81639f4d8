// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Exhibit.h"

/*! Every operation of CMessageBox, in each form. */
QList<Exhibit> boxExhibits();

/*! About boxes, a plain dialog, file dialogs. Those show what is in \a photoFolder. */
QList<Exhibit> dialogExhibits(const QString &photoFolder);

/*! The overlays over a photograph. */
QList<Exhibit> overlayExhibits();

/*! Viewers, buttons and labels. */
QList<Exhibit> widgetExhibits();

/*! All of them, by kind. */
QList<ExhibitSection> exhibitSections(const QString &photoFolder);

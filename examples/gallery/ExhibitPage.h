// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Exhibit.h"
#include "PictureCounts.h"
#include "PictureName.h"

#include <QtWidgets/QScrollArea>

class QGridLayout;

/*! The exhibits of one kind: live ones, and a button to open each of the others. Wears the sheets as a window does. */
class CExhibitPage final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CExhibitPage(const ExhibitSection &section, QWidget *parent = nullptr);

    /*!
        Writes a picture of each exhibit that has one, and whose name begins with \a only, into \a folder, under \a name
        with its own name in it. Opens and closes dialogs. Call it while the page is shown.
    */
    PictureCounts writePictures(const QString &folder, PictureName name, const QString &only);

private:
    void addHeading(const QString &text);
    QWidget *newSpecimen(const Exhibit &exhibit);
    QPixmap pictureOf(qsizetype index);

    QList<Exhibit> m_exhibits;
    QList<QWidget *> m_specimens; // in the same order
    QGridLayout *m_grid;
};

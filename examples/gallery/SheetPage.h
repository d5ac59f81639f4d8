// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Selectors.h"

#include <QtWidgets/QScrollArea>

class QGridLayout;

/*!
    Every control that one sheet styles, a row for each of its selectors: in its usual state, disabled, and under
    the mouse, pressed, checked or not where the sheet tells that apart; behind it, what it opens. Parts that change
    under the mouse, such as handles, have to be tried with one. The page wears the sheets as a window of the
    product does.
*/
class CSheetPage final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CSheetPage(const QString &sheetPath, QWidget *parent = nullptr);

    int selectorCount() const;
    /*! Selectors that this program has no control for. */
    QStringList withoutSpecimen() const;

private:
    void addHeading(const QString &text);
    void addRows(const QString &sheet);
    void addSpecimens(const StyledControl &control, int row);
    void addPopUps();

    QGridLayout *m_grid;
    int m_selectorCount = 0;
    QStringList m_withoutSpecimen;
};

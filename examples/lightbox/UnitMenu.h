// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QMenu>

class QActionGroup;

/*! The unit of sizes, kept in the settings. Its commands go through the gate like those of the window. */
class CUnitMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit CUnitMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    void unitChanged();

public Q_SLOTS:
    // The commands, called by their names.
    void usePixels();
    void useInches();
    void useCentimetres();
    void useMillimetres();

private:
    void addUnit(const QString &text, const char *slot);
    void setUnit(int unit);
    void markUnit();

    QActionGroup *m_units;
};

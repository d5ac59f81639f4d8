// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "UnitMenu.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>

using namespace ZYX_zglv6;

namespace {

enum Unit { Pixels, Inches, Centimetres, Millimetres }; // as the library reads them

} // namespace

CUnitMenu::CUnitMenu(QWidget *parent)
    : QMenu(tr("&Unit of sizes"), parent)
    , m_units(new QActionGroup(this))
{
    addUnit(tr("&Pixels"), "usePixels"); // in the order of the values
    addUnit(tr("&Inches"), "useInches");
    addUnit(tr("&Centimetres"), "useCentimetres");
    addUnit(tr("&Millimetres"), "useMillimetres");
    markUnit();
    // Through a closed gate a command comes later or, after another one, never; its mark came at once.
    connect(this, &QMenu::aboutToShow, this, &CUnitMenu::markUnit);
}

void CUnitMenu::addUnit(const QString &text, const char *slot)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    m_units->addAction(action);
    Singleton<CActionManager>::instance().addAction(action, this, slot);
}

void CUnitMenu::usePixels()
{
    setUnit(Pixels);
}

void CUnitMenu::useInches()
{
    setUnit(Inches);
}

void CUnitMenu::useCentimetres()
{
    setUnit(Centimetres);
}

void CUnitMenu::useMillimetres()
{
    setUnit(Millimetres);
}

void CUnitMenu::setUnit(int unit)
{
    CSettings().setValue(imageSizeUnitsKey, unit);
    markUnit();
    Q_EMIT unitChanged(); // keep last
}

void CUnitMenu::markUnit()
{
    QAction *unit = m_units->actions().value(CSettings().value(imageSizeUnitsKey, int(Pixels)).toInt());
    if (unit != nullptr) {
        unit->setChecked(true);
    }
}

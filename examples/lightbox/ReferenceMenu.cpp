// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceMenu.h"

#include "CalibrationCommand.h"
#include "FilmHistory.h"
#include "Gate.h"
#include "PresetBrowser.h"
#include "PresetLibrary.h"
#include "TimeLine.h"

#include <QtGui/QAction>

namespace {

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

CReferenceMenu::CReferenceMenu(QWidget *parent)
    : QMenu(tr("&Reference"), parent)
{
    addCommand(tr("&Presets"), Qt::Key_P, "showPresets");
    addCommand(tr("&Film history"), Qt::Key_T, "showTimeLine");
    if (isCalibrationOffered()) {
        addCommand(tr("&Calibration modules"), Qt::Key_C, "showCalibration");
    }
}

CReferenceMenu::~CReferenceMenu() = default;

void CReferenceMenu::addCommand(const QString &text, const QKeySequence &shortcut, const char *slot)
{
    QAction *action = addAction(text); // in its menu before it is registered, for the sake of its shortcut
    action->setShortcut(shortcut);
    gate().addAction(action, this, slot);
}

void CReferenceMenu::setPhoto(const QString &path)
{
    m_photo = path;
    if (m_calibration && m_calibration->isVisible()) {
        m_calibration->setPhoto(path);
    }
}

CPresetBrowser *CReferenceMenu::presetBrowser() const
{
    return m_browser;
}

CTimeLine *CReferenceMenu::timeLine() const
{
    return m_timeLine;
}

CPhotoDialog *CReferenceMenu::calibrationPanel() const
{
    return m_calibration;
}

void CReferenceMenu::showPresets()
{
    if (!m_browser) {
        m_browser = new CPresetBrowser(library(), parentOfWindows());
    }
    bringUp(*m_browser);
}

void CReferenceMenu::showTimeLine()
{
    if (!m_timeLine) {
        m_timeLine = new CTimeLine(CFilmHistory(), library(), parentOfWindows());
        connect(m_timeLine, &CTimeLine::presetChosen, this, [this](const QString &id) {
            showPresets();
            m_browser->showPreset(id);
        });
    }
    bringUp(*m_timeLine);
}

void CReferenceMenu::showCalibration()
{
    if (!m_calibration) {
        m_calibration = newCalibrationPanel(parentOfWindows());
    }
    if (m_calibration) {
        m_calibration->setPhoto(m_photo);
        bringUp(*m_calibration);
    }
}

std::shared_ptr<const CPresetLibrary> CReferenceMenu::library()
{
    if (!m_library) {
        m_library = std::make_shared<const CPresetLibrary>();
    }
    return m_library;
}

/*! A menu is a window itself. */
QWidget *CReferenceMenu::parentOfWindows() const
{
    return parentWidget()->window();
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LanguageMenu.h"

#include "common/Look.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/look/LanguageManager.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtGui/QStandardItemModel>

using namespace ZYX_zglv6;

CLanguageMenu::CLanguageMenu(QWidget *parent)
    : QMenu(tr("&Language"), parent)
    , m_languages(new QActionGroup(this))
{
    m_languages->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional); // the choice may be none of them
    CLanguageManager &languages = CLanguageManager::getInstance();
    for (int row = 0; row < languages.langCount(); ++row) {
        addLanguage(languages.model()->index(row, languageNameColumn).data().toString(), row);
    }
    markChosen();
    // Through a closed gate a command comes later or, after another one, never; its mark came at once.
    connect(this, &QMenu::aboutToShow, this, &CLanguageMenu::markChosen);
}

void CLanguageMenu::addLanguage(const QString &name, int row)
{
    QAction *action = addAction(name);
    action->setCheckable(true);
    m_languages->addAction(action);
    connect(action, &QAction::triggered, this, [this, row] { m_wanted = row; }); // before the gate gets to know of it
    Singleton<CActionManager>::instance().addAction(action, this, "useWanted");
}

void CLanguageMenu::useWanted()
{
    if (m_wanted < 0) {
        return;
    }
    const bool isChanged = CLanguageManager::getInstance().changeLanguage(m_wanted);
    markChosen();
    if (isChanged) {
        Q_EMIT languageChosen(m_languages->actions().at(m_wanted)->text()); // keep last
    }
}

void CLanguageMenu::markChosen()
{
    const int chosen = CLanguageManager::getInstance().currentLanguageIndex();
    const QList<QAction *> actions = m_languages->actions();
    for (qsizetype row = 0; row < actions.size(); ++row) {
        actions.at(row)->setChecked(row == chosen);
    }
}

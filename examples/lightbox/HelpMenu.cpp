// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HelpMenu.h"

#include "utilsDll/look/LanguageManager.h"

#include <QtGui/QAction>

using namespace ZYX_zglv6;

CHelpMenu::CHelpMenu(QWidget *parent)
    : QMenu(tr("&Help"), parent)
{
    addLink(tr("&Help"), CRedirectionLinks::linkHelp);
    addLink(tr("&User guide"), CRedirectionLinks::linkUserGuide);
    addLink(tr("&Learning"), CRedirectionLinks::linkLearning);
    addLink(tr("&Support"), CRedirectionLinks::linkSupport);
    addSeparator();
    addLink(tr("H&ome page"), CRedirectionLinks::linkHome);
    addLink(tr("Sho&p"), CRedirectionLinks::linkShop);
    addLink(tr("&Improvement program"), CRedirectionLinks::linkImprovementProgram);
    addLink(tr("P&atents"), CRedirectionLinks::linkPatents);
}

/*! Not through the gate: to look at an address is possible at any time. */
void CHelpMenu::addLink(const QString &text, CRedirectionLinks::zyxLinkType type)
{
    connect(addAction(text), &QAction::triggered, this,
            [this, type] { Q_EMIT linkChosen(QUrl(CRedirectionLinks::get(type, CLanguageManager::getInstance()))); });
}

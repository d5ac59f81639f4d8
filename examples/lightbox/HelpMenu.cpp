// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HelpMenu.h"

#include "aboutDlg/AboutDlg.h"
#include "storageLocation/storageLocation.h"
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
    addSeparator();
    connect(addAction(tr("&Check the data files")), &QAction::triggered, this, &CHelpMenu::checkDataFiles);
    connect(addAction(tr("A&bout Zyx Grainlab")), &QAction::triggered, this, &CHelpMenu::showAboutBox);
}

void CHelpMenu::showAboutBox()
{
    auto *about = new CAboutDlg(window(), Qt::WindowFlags());
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->myExec();
}

void CHelpMenu::checkDataFiles()
{
    CStorageLocation::dopGPAPath(true);
    CStorageLocation::featureTogglePath(true);
    CStorageLocation::framePackPath(true);
    CStorageLocation::texturesPackPath(true);
    CStorageLocation::defectsPackPath();
}

/*! Not through the gate: to look at an address is possible at any time. */
void CHelpMenu::addLink(const QString &text, CRedirectionLinks::zyxLinkType type)
{
    connect(addAction(text), &QAction::triggered, this,
            [this, type] { Q_EMIT linkChosen(QUrl(CRedirectionLinks::get(type, CLanguageManager::getInstance()))); });
}

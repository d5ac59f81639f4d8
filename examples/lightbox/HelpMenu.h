// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/RedirectionLinks.h"

#include <QtCore/QUrl>
#include <QtWidgets/QMenu>

/*!
    The pages of the product's web site, whose addresses this host only shows: nothing is fetched. Also what there is to
    know of the product, and whether its data files are there.
*/
class CHelpMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit CHelpMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    void linkChosen(const QUrl &address);

public Q_SLOTS:
    void showAboutBox();
    /*! A box for each file that can't be read. */
    void checkDataFiles();

private:
    void addLink(const QString &text, CRedirectionLinks::zyxLinkType type);
};

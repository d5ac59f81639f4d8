// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/look/RedirectionLinks.h"

#include <QtCore/QUrl>
#include <QtWidgets/QMenu>

/*! The pages of the product's web site. This host only shows where they lie: nothing is fetched. */
class CHelpMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit CHelpMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    void linkChosen(const QUrl &address);

private:
    void addLink(const QString &text, CRedirectionLinks::zyxLinkType type);
};

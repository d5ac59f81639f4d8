// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtWidgets/QDialog>

namespace ZYX_zglv6 {

/*! The base of the product's dialogs: no buttons in the title bar but that for closing. Main thread only. */
class UTILSDLL_EXPORT CBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /*! \a flags, without the hints for minimizing, maximizing and context help. */
    CBaseDialog(QWidget *parent, QFlags<Qt::WindowType> flags);
    ~CBaseDialog() override;

    Q_INVOKABLE QString getObjectName();

public Q_SLOTS:
    /*! Does nothing: a name that hosts can connect to. */
    void sendNotification();

protected:
    /*! Only the first one reaches QDialog, which places the dialog: from then on it stays where the user put it. */
    void showEvent(QShowEvent *event) override;

public:
    /*! Whether the automation service may drive this dialog: true. A subclass that must stay out of it says false. */
    virtual bool canUseInAATSignalService() const;

protected:
    bool firstShow = true; // not yet shown
};

} // namespace ZYX_zglv6

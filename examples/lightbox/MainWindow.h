// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "PhotoList.h"

#include "utilsDll/frame/ErrStrings.h"

#include <QtWidgets/QMainWindow>

class CPhotoView;
class QAction;

/*! The window: one photograph, the way to the next, and what there is to know of it in the status bar. */
class CMainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit CMainWindow(const QString &photos, QWidget *parent = nullptr);

Q_SIGNALS:
    /*! The current photograph is on the screen, or the user knows that it can't be shown. */
    void currentShown();

public Q_SLOTS:
    void showNext();
    void showPrevious();
    void open();

    /*! Shows the current photograph of the list; an unreadable one is reported to the user. */
    void showCurrent();

private:
    QAction *addCommand(const QString &text, const QKeySequence &shortcut, void (CMainWindow::*slot)());

    QString describeCurrent() const;

    CPhotoList m_photos;
    CPhotoView *m_view;
    ZYX_zglv6::CErrStrings m_lastResort; // made in advance: its messages need no memory when they are shown
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "PhotoFiles.h"
#include "PhotoList.h"

#include "utilsDll/frame/ErrStrings.h"

#include <QtCore/QSize>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>
#include <QtWidgets/QMainWindow>

#include <memory>
#include <vector>

class CPhotoBar;
class CPhotoLoader;
class CPhotoView;
class CReferenceMenu;
class CSettingsPanel;
class QAction;
class QMenu;

/*!
    The window: one photograph, the way to the next, a panel of settings, and what there is to know of it in the status
    bar. Every command but leaving and help goes through the gate for commands, which is closed while a photograph
    is loaded.
*/
class CMainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit CMainWindow(const QString &photos, QWidget *parent = nullptr);
    ~CMainWindow() override;

    /*! Brings the panel to where the last run left it. Prints a line. */
    void restorePanel();

    /*! After how many milliseconds a loading is given up; with a negative number never. */
    void setLoadTimeLimit(int milliseconds);

    /*! The service that askService() asks. */
    void setService(const QUrl &address);

    /*! The thread that loads photographs, one after the other. */
    QThreadPool &pool();
    CSettingsPanel &panel() const;
    QAction *nextAction() const;
    CReferenceMenu &reference() const;
    /*! Empty, as its name, if there is none. */
    QString currentPath() const;
    QString currentName() const;
    /*! In pixels of the original; empty if it is not shown. */
    QSize currentSize() const;
    QString statusText() const;

Q_SIGNALS:
    /*! A photograph is being loaded: the gate is closed now. */
    void loadingBegun();
    /*! The current photograph is on the screen, or the user knows that it can't be shown. */
    void currentShown();
    /*! A row of the panel has been carried out. */
    void panelChanged();

public Q_SLOTS:
    // The commands, called by their names.
    void showNext();
    void showPrevious();
    void open();
    void openFolder();
    void moveToTrash();
    void saveCopy();
    void savePrint();
    void askService();
    void turn();
    void zoomIn();
    void zoomOut();
    void zoomToFit();
    void setFilling(bool isFilling);
    void setPanelShown(bool isShown);
    void setBlackAndWhite(bool isBlackAndWhite);
    void setMirrored(bool isMirrored);
    void setFramed(bool isFramed);

    /*! Loads and shows the current photograph of the list; an unreadable one is reported to the user. */
    void showCurrent();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addPhotographMenu();
    void addViewMenu();
    void addReferenceMenu();
    void addHelpMenu();
    void registerPanel();
    QAction *addCommand(QMenu *menu, const QString &text, const QKeySequence &shortcut, const char *slot);
    void addSwitch(QMenu *menu, const QString &text, const QKeySequence &shortcut, bool isOn, const char *slot);

    bool mayLeave();
    bool isTurned() const; // and the print is not saved
    void showPhotosOf(const QString &path);
    void tell(const CPhotoFiles::Outcome &outcome);
    void loadCurrent();
    CPhotoLoader &addLoader();
    void showLoaded(const CPhotoLoader &loader);
    void describeCurrent();
    void storePanel();

    CPhotoList m_photos;
    CPhotoFiles m_files;
    CPhotoView *m_view;
    CPhotoBar *m_bar;
    CSettingsPanel *m_panel;
    QAction *m_next = nullptr;
    CReferenceMenu *m_reference = nullptr;
    QSize m_currentSize;
    bool m_isGivenUp = false; // the current photograph took too long
    int m_savedTurns = 0; // what the print was turned by when it was saved
    QUrl m_service;
    int m_loadTimeLimit;
    std::vector<std::unique_ptr<CPhotoLoader>> m_loaders; // of this photograph, and of those given up that still run
    QThreadPool m_pool; // waits for its thread before the loaders go
    ZYX_zglv6::CErrStrings m_lastResort; // made in advance: its messages need no memory when they are shown
};

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "Gate.h"
#include "PhotoService.h"
#include "PhotoView.h"
#include "SettingsPanel.h"

#include "baseDialogs/NativeDialogs.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QStatusBar>

using namespace ZYX_zglv6;

void CMainWindow::showNext()
{
    if (mayLeave()) {
        m_photos.moveToNext();
        showCurrent();
    }
}

void CMainWindow::showPrevious()
{
    if (mayLeave()) {
        m_photos.moveToPrevious();
        showCurrent();
    }
}

void CMainWindow::open()
{
    gate().blockActions(); // no remembered command shall come while the dialog is open
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const QString path = Singleton<CNativeDialogs>::instance().getOpenFileName(
        this, tr("Open a photograph"), m_photos.folder(),
        tr("Photographs (%1)").arg(imageFilter) + u";;" + tr("All files (*)"), nullptr, QFileDialog::Options());
    showPhotosOf(path);
}

void CMainWindow::openFolder()
{
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const QString path = Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(
        this, false, tr("Open a folder"), m_photos.folder(), QFileDialog::Options());
    showPhotosOf(path);
}

void CMainWindow::showPhotosOf(const QString &path)
{
    if (!path.isEmpty() && mayLeave()) {
        m_photos = CPhotoList(path);
        showCurrent();
    }
}

void CMainWindow::moveToTrash()
{
    if (m_photos.current().isEmpty()) {
        return;
    }
    gate().blockActions(); // as while a photograph is chosen
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const CPhotoFiles::Outcome outcome = m_files.moveToTrash(m_photos.current(), isTurned());
    if (outcome.isDone) {
        m_photos.leaveCurrent();
        showCurrent();
    } else {
        tell(outcome);
    }
}

void CMainWindow::saveCopy()
{
    if (m_photos.current().isEmpty()) {
        return;
    }
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    tell(m_files.saveCopy(m_photos.current()));
}

void CMainWindow::savePrint()
{
    if (m_currentSize.isEmpty()) {
        return;
    }
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const CPhotoFiles::Outcome outcome
        = m_files.savePrint(m_photos.current(), [this](const QImage &photo) { return m_view->printOf(photo); });
    if (outcome.isDone) {
        m_savedTurns = m_view->turns();
    }
    tell(outcome);
}

void CMainWindow::tell(const CPhotoFiles::Outcome &outcome)
{
    if (!outcome.text.isEmpty()) {
        statusBar()->showMessage(outcome.text);
    }
}

/*! Nothing that was done by hand is lost without a question. */
bool CMainWindow::mayLeave()
{
    if (!isTurned()) {
        return true;
    }
    const QMessageBox::StandardButton answer = m_files.askForTurned(m_photos.current());
    if (answer == QMessageBox::Save) {
        savePrint();
        return !isTurned();
    }
    return answer == QMessageBox::Discard;
}

bool CMainWindow::isTurned() const
{
    return !m_currentSize.isEmpty() && m_view->turns() != m_savedTurns;
}

void CMainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLeave());
}

void CMainWindow::turn()
{
    if (!m_currentSize.isEmpty()) {
        m_view->turn();
    }
}

void CMainWindow::zoomIn()
{
    m_view->zoomIn();
}

void CMainWindow::zoomOut()
{
    m_view->zoomOut();
}

void CMainWindow::zoomToFit()
{
    m_view->zoomToFit();
}

/*! Asks for the address if none is known. Busy until there is an answer, as with a loading. */
void CMainWindow::askService()
{
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    if (m_service.host().isEmpty()) {
        m_service
            = QUrl::fromUserInput(QInputDialog::getText(this, tr("Ask the service"), tr("Address of the service:")));
    }
    if (!m_service.host().isEmpty()) {
        statusBar()->showMessage(tr("Asking %1").arg(m_service.toDisplayString()));
        const QString name = currentName();
        const QString description = CPhotoService(m_service).describe(name, m_currentSize);
        if (name == currentName()) { // another one may be shown by now
            statusBar()->showMessage(description);
        }
    }
}

void CMainWindow::setFilling(bool isFilling)
{
    m_view->setFilling(isFilling);
}

void CMainWindow::setPanelShown(bool isShown)
{
    m_panel->setVisible(isShown);
}

void CMainWindow::setBlackAndWhite(bool isBlackAndWhite)
{
    m_view->setBlackAndWhite(isBlackAndWhite);
    storePanel();
}

void CMainWindow::setMirrored(bool isMirrored)
{
    m_view->setMirrored(isMirrored);
    storePanel();
}

void CMainWindow::setFramed(bool isFramed)
{
    m_view->setFramed(isFramed);
    storePanel();
}

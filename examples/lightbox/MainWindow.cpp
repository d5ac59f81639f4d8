// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "PhotoView.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtGui/QIcon>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

namespace {

constexpr QSize firstSize(1100, 780);

} // namespace

CMainWindow::CMainWindow(const QString &photos, QWidget *parent)
    : QMainWindow(parent)
    , m_photos(photos)
    , m_view(new CPhotoView(this))
{
    setWindowTitle(tr("Lightbox"));
    setWindowIcon(QIcon(u":/icons/app_icon/logo_64.png"_qs));
    setCentralWidget(m_view);
    statusBar(); // made before the window is shown, so that it is laid out with it
    resize(firstSize);

    QMenu *menu = menuBar()->addMenu(tr("&Photograph"));
    menu->addAction(addCommand(tr("&Open..."), QKeySequence::Open, &CMainWindow::open));
    menu->addAction(addCommand(tr("&Next"), Qt::Key_Right, &CMainWindow::showNext));
    menu->addAction(addCommand(tr("&Previous"), Qt::Key_Left, &CMainWindow::showPrevious));
    QAction *quit = menu->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

QAction *CMainWindow::addCommand(const QString &text, const QKeySequence &shortcut, void (CMainWindow::*slot)())
{
    auto *action = new QAction(text, this);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void CMainWindow::showNext()
{
    m_photos.moveToNext();
    showCurrent();
}

void CMainWindow::showPrevious()
{
    m_photos.moveToPrevious();
    showCurrent();
}

void CMainWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open a photograph"), QFileInfo(m_photos.current()).absolutePath(),
        tr("Photographs (%1)").arg(ZYX_zglv6::imageFilter) + u";;" + tr("All files (*)"));
    if (!path.isEmpty()) {
        m_photos = CPhotoList(path);
        showCurrent();
    }
}

void CMainWindow::showCurrent()
{
    if (m_photos.count() == 0) {
        statusBar()->showMessage(tr("No photographs in this folder"));
    } else if (m_view->showPhoto(m_photos.current())) {
        statusBar()->showMessage(describeCurrent());
    } else {
        statusBar()->showMessage(tr("%1 can't be shown").arg(QFileInfo(m_photos.current()).fileName()));
        m_lastResort.ShowUnsupportedImageDialog();
    }
    Q_EMIT currentShown(); // keep last: a slot may close this window
}

QString CMainWindow::describeCurrent() const
{
    const QSize size = m_view->photoSize();
    return tr("%1 of %2: %3, %4 x %5")
        .arg(QString::number(m_photos.position() + 1), QString::number(m_photos.count()),
             QFileInfo(m_photos.current()).fileName(), QString::number(size.width()), QString::number(size.height()));
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "HelpMenu.h"
#include "LanguageMenu.h"
#include "PhotoLoader.h"
#include "PhotoService.h"
#include "PhotoView.h"
#include "SettingsPanel.h"
#include "UnitMenu.h"

#include "common/Report.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/OperationCompletionWaiter.h"
#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtGui/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

using namespace ZYX_zglv6;

namespace {

constexpr QSize firstSize(1100, 780);
constexpr int patienceMs = 30'000; // for a photograph on a slow drive
constexpr QLatin1StringView panelKey("lightbox/panel");

CActionManager &gate()
{
    return Singleton<CActionManager>::instance();
}

} // namespace

CMainWindow::CMainWindow(const QString &photos, QWidget *parent)
    : QMainWindow(parent)
    , m_photos(photos)
    , m_files(this)
    , m_view(new CPhotoView)
    , m_panel(new CSettingsPanel)
    , m_loadTimeLimit(patienceMs)
{
    m_pool.setMaxThreadCount(1);
    setWindowTitle(tr("Lightbox"));

    auto *table = new QWidget;
    table->setObjectName(u"centralWidget"_qs); // the sheets know it by this name
    auto *layout = new QHBoxLayout(table);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_panel);
    setCentralWidget(table);
    statusBar(); // made before the window is shown, so that it is laid out with it
    resize(firstSize);

    addPhotographMenu();
    addViewMenu();
    addHelpMenu();
    registerPanel();
    setCustomStyleSheet(this, QssLoadBaseSheets, QString());
}

CMainWindow::~CMainWindow()
{
    gate().clear(); // they all go to this window or its menus
}

void CMainWindow::addPhotographMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Photograph"));
    addCommand(menu, tr("&Open..."), QKeySequence::Open, "open");
    m_next = addCommand(menu, tr("&Next"), Qt::Key_Right, "showNext");
    addCommand(menu, tr("&Previous"), Qt::Key_Left, "showPrevious");
    addCommand(menu, tr("&Ask the service"), Qt::Key_D, "askService");
    addCommand(menu, tr("Save a &copy..."), Qt::CTRL | Qt::SHIFT | Qt::Key_S, "saveCopy");
    addCommand(menu, tr("Move to the &trash..."), QKeySequence::Delete, "moveToTrash");
    // Leaving is possible at any time.
    QAction *quit = menu->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void CMainWindow::addViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    addSwitch(menu, tr("&Fill the window"), Qt::Key_F, false, "setFilling");
    addSwitch(menu, tr("&Settings"), Qt::Key_S, true, "setPanelShown");
    auto *units = new CUnitMenu(menu);
    menu->addMenu(units);
    connect(units, &CUnitMenu::unitChanged, this, &CMainWindow::describeCurrent);
    auto *languages = new CLanguageMenu(menu);
    menu->addMenu(languages);
    connect(languages, &CLanguageMenu::languageChosen, this, [this](const QString &language) {
        statusBar()->showMessage(tr("%1 will be spoken from the next start on").arg(language));
    });
}

void CMainWindow::addHelpMenu()
{
    auto *help = new CHelpMenu(menuBar());
    menuBar()->addMenu(help);
    connect(help, &CHelpMenu::linkChosen, this,
            [this](const QUrl &address) { statusBar()->showMessage(address.toDisplayString()); });
}

void CMainWindow::registerPanel()
{
    gate().addSettingsPushButtonAction(m_panel->blackAndWhite(), this, "setBlackAndWhite");
    gate().addSettingsPushButtonAction(m_panel->mirrored(), this, "setMirrored");
    gate().addSettingsPushButtonAction(m_panel->framed(), this, "setFramed");
}

QAction *CMainWindow::addCommand(QMenu *menu, const QString &text, const QKeySequence &shortcut, const char *slot)
{
    QAction *action = menu->addAction(text); // in its menu before it is registered, for the sake of its shortcut
    action->setShortcut(shortcut);
    gate().addAction(action, this, slot);
    return action;
}

void CMainWindow::addSwitch(QMenu *menu, const QString &text, const QKeySequence &shortcut, bool isOn, const char *slot)
{
    QAction *action = menu->addAction(text);
    action->setShortcut(shortcut);
    action->setCheckable(true);
    action->setChecked(isOn);
    gate().addBooleanAction(action, this, slot);
}

void CMainWindow::restorePanel()
{
    const QByteArray blob = CSettings().value(panelKey).toByteArray();
    m_panel->deserialize(blob, false, QString());
    m_view->setBlackAndWhite(m_panel->blackAndWhite()->isButtonChecked());
    m_view->setMirrored(m_panel->mirrored()->isButtonChecked());
    m_view->setFramed(m_panel->framed()->isButtonChecked());
    printLine(9, QLatin1StringView("panel"),
              blob.isEmpty()
                  ? u"no state stored yet"_qs
                  : u"restored from %1 bytes; frame %2"_qs.arg(
                      QString::number(blob.size()), m_panel->framed()->isButtonChecked() ? u"on"_qs : u"off"_qs));
}

void CMainWindow::storePanel()
{
    CSettings().setValue(panelKey, m_panel->serialize());
    Q_EMIT panelChanged(); // keep last
}

void CMainWindow::setLoadTimeLimit(int milliseconds)
{
    m_loadTimeLimit = milliseconds;
}

void CMainWindow::setService(const QUrl &address)
{
    m_service = address;
}

QThreadPool &CMainWindow::pool()
{
    return m_pool;
}

CSettingsPanel &CMainWindow::panel() const
{
    return *m_panel;
}

QAction *CMainWindow::nextAction() const
{
    return m_next;
}

QString CMainWindow::currentPath() const
{
    return m_photos.current();
}

QString CMainWindow::currentName() const
{
    return QFileInfo(m_photos.current()).fileName();
}

QSize CMainWindow::currentSize() const
{
    return m_currentSize;
}

QString CMainWindow::statusText() const
{
    return statusBar()->currentMessage();
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
    gate().blockActions(); // no remembered command shall come while the dialog is open
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const QString path
        = QFileDialog::getOpenFileName(this, tr("Open a photograph"), m_photos.folder(),
                                       tr("Photographs (%1)").arg(imageFilter) + u";;" + tr("All files (*)"));
    if (!path.isEmpty()) {
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
    const CPhotoFiles::Outcome outcome = m_files.moveToTrash(m_photos.current());
    if (outcome.isDone) {
        m_photos.leaveCurrent();
        showCurrent();
    } else if (!outcome.text.isEmpty()) {
        statusBar()->showMessage(outcome.text);
    }
}

void CMainWindow::saveCopy()
{
    if (m_photos.current().isEmpty()) {
        return;
    }
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    const CPhotoFiles::Outcome outcome = m_files.saveCopy(m_photos.current());
    if (!outcome.text.isEmpty()) {
        statusBar()->showMessage(outcome.text);
    }
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
        statusBar()->showMessage(CPhotoService(m_service).describe(currentName(), m_currentSize));
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

void CMainWindow::showCurrent()
{
    m_currentSize = QSize(); // not known before it is loaded
    if (m_photos.current().isEmpty()) {
        m_view->showPhoto(QImage());
        statusBar()->showMessage(tr("No photographs in this folder"));
    } else {
        loadCurrent();
    }
    Q_EMIT currentShown(); // keep last: a slot may close this window
}

/*! The busy phase of this host. A command that comes meanwhile is carried out a second after it. */
void CMainWindow::loadCurrent()
{
    gate().blockActions();
    const auto unblock = qScopeGuard([] { gate().unBlockActions(); });
    statusBar()->showMessage(tr("Loading %1").arg(currentName()));

    CPhotoLoader &loader = addLoader();
    // Not blocked: the user's commands shall reach the gate and be remembered.
    COperationCompletionWaiter waiter(&loader, SIGNAL(finished()), false, false, nullptr);
    m_pool.start(&loader);
    Q_EMIT loadingBegun();
    waiter.startWaiting(m_loadTimeLimit);

    if (waiter.isOperationCompleted() && waiter.isOperationSuccess()) {
        m_pool.waitForDone(); // finished() comes from within its run
        showLoaded(loader);
        return;
    }
    // Too late, or the program is about to leave and has ended all loops.
    loader.stop();
    ZYX_LOG('W', m_photos.current() + u" was given up");
    statusBar()->showMessage(tr("%1 takes too long").arg(currentName()));
}

CPhotoLoader &CMainWindow::addLoader()
{
    if (m_pool.waitForDone(0)) {
        m_loaders.clear();
    }
    m_loaders.push_back(std::make_unique<CPhotoLoader>(m_photos.current()));
    return *m_loaders.back();
}

void CMainWindow::showLoaded(const CPhotoLoader &loader)
{
    m_view->showPhoto(loader.image());
    m_currentSize = loader.originalSize();
    if (!loader.image().isNull()) {
        describeCurrent();
        return;
    }
    ZYX_LOG('E', m_photos.current() + u": " + loader.error());
    statusBar()->showMessage(tr("%1 can't be shown").arg(currentName()));
    m_lastResort.ShowUnsupportedImageDialog();
}

void CMainWindow::describeCurrent()
{
    if (m_currentSize.isEmpty()) {
        return; // what is wrong with it stays to be read
    }
    statusBar()->showMessage(tr("%1 of %2: %3, %4, %5")
                                 .arg(QString::number(m_photos.position() + 1), QString::number(m_photos.count()),
                                      currentName(), sizeToString(m_currentSize),
                                      fileSizeToString(QFileInfo(m_photos.current()).size())));
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "Gate.h"
#include "HelpMenu.h"
#include "LanguageMenu.h"
#include "PhotoBar.h"
#include "PhotoLoader.h"
#include "PhotoView.h"
#include "ReferenceMenu.h"
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
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

using namespace ZYX_zglv6;

namespace {

constexpr QSize firstSize(1100, 780);
constexpr int patienceMs = 30'000; // for a photograph on a slow drive
constexpr QLatin1StringView panelKey("lightbox/panel");

} // namespace

CMainWindow::CMainWindow(const QString &photos, QWidget *parent)
    : QMainWindow(parent)
    , m_photos(photos)
    , m_files(this)
    , m_view(new CPhotoView)
    , m_bar(new CPhotoBar)
    , m_panel(new CSettingsPanel)
    , m_loadTimeLimit(patienceMs)
{
    m_pool.setMaxThreadCount(1);
    setWindowTitle(tr("Lightbox"));

    auto *table = new QWidget;
    table->setObjectName(u"centralWidget"_qs); // the sheets know it by this name
    auto *layout = new QHBoxLayout(table);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *column = new QVBoxLayout;
    column->addWidget(m_view, 1);
    column->addWidget(m_bar);
    layout->addLayout(column, 1);
    layout->addWidget(m_panel);
    setCentralWidget(table);
    statusBar(); // made before the window is shown, so that it is laid out with it
    resize(firstSize);

    addPhotographMenu();
    addViewMenu();
    addReferenceMenu();
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
    addCommand(menu, tr("Open a &folder..."), Qt::CTRL | Qt::SHIFT | Qt::Key_O, "openFolder");
    m_next = addCommand(menu, tr("&Next"), Qt::Key_Right, "showNext");
    QAction *previous = addCommand(menu, tr("&Previous"), Qt::Key_Left, "showPrevious");
    m_bar->addCommand(previous, u":/icons/arrows/left-icon-%1.svg"_qs);
    m_bar->addCommand(m_next, u":/icons/arrows/right-icon-%1.svg"_qs);
    m_bar->addGap();
    QAction *turn = addCommand(menu, tr("Tu&rn"), Qt::CTRL | Qt::Key_R, "turn");
    m_bar->addCommand(turn, u":/icons/toolBar/rotate-right-%1.svg"_qs);
    m_bar->addGap();
    addCommand(menu, tr("&Save the print..."), QKeySequence::Save, "savePrint");
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
    m_bar->addCommand(addCommand(menu, tr("Zoom &in"), QKeySequence::ZoomIn, "zoomIn"),
                      u":/icons/printing/ic-zoom-in-%1.png"_qs);
    m_bar->addCommand(addCommand(menu, tr("Zoom &out"), QKeySequence::ZoomOut, "zoomOut"),
                      u":/icons/printing/ic-zoom-out-%1.png"_qs);
    addCommand(menu, tr("&Whole photograph"), Qt::CTRL | Qt::Key_0, "zoomToFit");
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

void CMainWindow::addReferenceMenu()
{
    m_reference = new CReferenceMenu(menuBar());
    menuBar()->addMenu(m_reference);
    connect(this, &CMainWindow::currentShown, m_reference,
            [this] { m_reference->setPhoto(m_isGivenUp ? QString() : m_photos.current()); });
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

CReferenceMenu &CMainWindow::reference() const
{
    return *m_reference;
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

void CMainWindow::showCurrent()
{
    m_currentSize = QSize(); // not known before it is loaded
    m_isGivenUp = false;
    m_savedTurns = 0;
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
    m_view->startProgress();
    const auto unblock = qScopeGuard([this] {
        m_view->stopProgress(); // which handles events: no command shall come with them
        gate().unBlockActions();
    });
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
    m_isGivenUp = true;
    loader.stop();
    m_view->showPhoto(QImage());
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
    m_view->stopProgress(); // or it would stand behind the box
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

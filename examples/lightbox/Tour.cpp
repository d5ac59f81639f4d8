// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "MainWindow.h"
#include "PhotoService.h"
#include "Report.h"
#include "SettingsPanel.h"

#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/RunnableItem.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QThread>
#include <QtGui/QAction>

#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int shortPatienceMs = 50;

/*! Stands in the way of the loaders until it is asked to stop. */
class CRoadBlock final : public CQRunnableItem
{
public:
    CRoadBlock()
    {
        setAutoDelete(false);
    }

protected:
    void execute() override
    {
        while (!stopRequired().value()) {
            QThread::msleep(1);
        }
    }
};

QString stateOf(const CSettingsPushButton *row)
{
    return row->isButtonChecked() ? u"on"_qs : u"off"_qs;
}

} // namespace

CTour::CTour(CMainWindow &window, QUrl service)
    : m_window(window)
    , m_service(std::move(service))
{
}

void CTour::start()
{
    if (m_window.currentName().isEmpty()) {
        printLine(9, QLatin1StringView("command"), u"there is no photograph to show it with"_qs);
        Q_EMIT finished(); // keep last
        return;
    }
    commandAtOnce();
    commandWhileBusy();
}

void CTour::commandAtOnce()
{
    m_window.nextAction()->trigger();
    printLine(9, QLatin1StringView("command"), u"\"Next\" was carried out at once: "_qs + m_window.currentName());
}

/*! Presses "Frame" while the next photograph is loaded. The way goes on when that is carried out. */
void CTour::commandWhileBusy()
{
    CSettingsPushButton *frame = m_window.panel().framed();
    connect(&m_window, &CMainWindow::panelChanged, this, &CTour::commandCarriedOut, Qt::SingleShotConnection);
    connect(
        &m_window, &CMainWindow::loadingBegun, this,
        [frame] {
            frame->clickButton();
            printLine(10, QLatin1StringView("busy"),
                      u"\"Frame\" was pressed during the loading: it shows %1 again"_qs.arg(stateOf(frame)));
        },
        Qt::SingleShotConnection);
    m_window.nextAction()->trigger();
    m_sinceLoading.start();
}

void CTour::commandCarriedOut()
{
    printLine(11, QLatin1StringView("replay"),
              u"\"Frame\" was carried out %1 ms after the loading: it shows %2"_qs.arg(
                  QString::number(m_sinceLoading.elapsed()), stateOf(m_window.panel().framed())));
    loadingWithoutPatience();
    questions();
    Q_EMIT finished(); // keep last
}

/*! The same loading twice: when its thread is taken, and when it is free. */
void CTour::loadingWithoutPatience()
{
    m_window.setLoadTimeLimit(shortPatienceMs);
    QString late;
    {
        CRoadBlock roadBlock;
        m_window.pool().start(&roadBlock);
        const auto clearTheRoad = qScopeGuard([this, &roadBlock] {
            roadBlock.stop();
            m_window.pool().waitForDone();
        });
        m_window.showCurrent();
        late = m_window.statusText();
    }
    m_window.setLoadTimeLimit(-1);
    m_window.showCurrent();
    printLine(12, QLatin1StringView("patience"),
              u"with %1 ms: \"%2\"; without a limit: \"%3\""_qs.arg(QString::number(shortPatienceMs), late,
                                                                    m_window.statusText()));
}

/*! One that the service answers, one that it refuses, and one where there is no service. */
void CTour::questions()
{
    if (m_service.isEmpty()) {
        return;
    }
    m_window.askService();
    printLine(13, QLatin1StringView("service"), m_window.statusText());
    printLine(14, QLatin1StringView("fault"), CPhotoService(m_service).describe(m_window.currentName(), QSize(0, 0)));
    QUrl nowhere = m_service;
    nowhere.setPort(1); // nothing listens there
    printLine(15, QLatin1StringView("refused"), CPhotoService(nowhere).describe(m_window.currentName(), QSize(1, 1)));
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "DialogsTour.h"
#include "FilesTour.h"
#include "FilmHistory.h"
#include "MainWindow.h"
#include "PhotoService.h"
#include "PresetLibrary.h"
#include "ReferenceTour.h"
#include "SettingsPanel.h"

#include "common/Look.h"
#include "common/Report.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/RunnableItem.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/RedirectionLinks.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QThread>
#include <QtGui/QAction>
#include <QtGui/QStandardItemModel>

#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int shortPatienceMs = 50;
constexpr int crashPatienceMs = 60'000;

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

/*! The number of a signal, or the system's code of an exception. */
QString deathOf(const QProcess &host)
{
    const int code = host.exitCode();
    const QString number = code < 0 ? QString(u"0x"_qs + QString::number(quint32(code), 16)) : QString::number(code);
    return (host.exitStatus() == QProcess::CrashExit ? u"crashed with "_qs : u"ended with "_qs) + number;
}

/*! What the process has left, with its size. */
QString dumpOf(qint64 process)
{
    const QDir folder(CStorageLocation::crashTempFilesPath());
    const QFileInfoList dumps = folder.entryInfoList({u"lightbox-%1-*.dmp"_qs.arg(process)}, QDir::Files);
    return dumps.isEmpty() ? u"no dump"_qs
                           : u"%1 of %2 bytes"_qs.arg(dumps.front().fileName(), QString::number(dumps.front().size()));
}

} // namespace

CTour::CTour(CMainWindow &window, Options options)
    : m_window(window)
    , m_options(std::move(options))
{
}

void CTour::start()
{
    if (m_window.currentName().isEmpty()) {
        printLine(10, QLatin1StringView("command"), u"there is no photograph to show it with"_qs);
        Q_EMIT finished(); // keep last
        return;
    }
    commandAtOnce();
    commandWhileBusy();
}

void CTour::commandAtOnce()
{
    m_window.nextAction()->trigger();
    printLine(10, QLatin1StringView("command"), u"\"Next\" was carried out at once: "_qs + m_window.currentName());
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
            printLine(11, QLatin1StringView("busy"),
                      u"\"Frame\" was pressed during the loading: it shows %1 again"_qs.arg(stateOf(frame)));
        },
        Qt::SingleShotConnection);
    m_window.nextAction()->trigger();
    m_sinceLoading.start();
}

void CTour::commandCarriedOut()
{
    printLine(12, QLatin1StringView("replay"),
              u"\"Frame\" was carried out %1 ms after the loading: it shows %2"_qs.arg(
                  QString::number(m_sinceLoading.elapsed()), stateOf(m_window.panel().framed())));
    loadingWithoutPatience();
    questions();
    files();
    languages();
    printLine(19, QLatin1StringView("dialogs"), tourDialogs(m_window));
    references();
    crash();
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
    printLine(13, QLatin1StringView("patience"),
              u"with %1 ms: \"%2\"; without a limit: \"%3\""_qs.arg(QString::number(shortPatienceMs), late,
                                                                    m_window.statusText()));
}

/*! One that the service answers, one that it refuses, and one where there is no service. */
void CTour::questions()
{
    if (m_options.service.isEmpty()) {
        return;
    }
    m_window.askService();
    printLine(14, QLatin1StringView("service"), m_window.statusText());
    printLine(15, QLatin1StringView("fault"),
              CPhotoService(m_options.service).describe(m_window.currentName(), QSize(0, 0)));
    QUrl nowhere = m_options.service;
    nowhere.setPort(1); // nothing listens there
    printLine(16, QLatin1StringView("refused"), CPhotoService(nowhere).describe(m_window.currentName(), QSize(1, 1)));
}

void CTour::files()
{
    printLine(17, QLatin1StringView("files"),
              tourFiles(m_window.currentPath(), m_window.currentSize(), m_options.workFolder));
}

/*! Chooses the next language, and goes back. */
void CTour::languages()
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    const int before = languages.currentLanguageIndex();
    if (before < 0) {
        printLine(18, QLatin1StringView("language"), u"the chosen one is not there"_qs);
        return;
    }
    languages.changeLanguage((before + 1) % languages.langCount());
    const QString chosen
        = languages.model()->index(languages.currentLanguageIndex(), languageNameColumn).data().toString();
    printLine(18, QLatin1StringView("language"),
              u"%1 was chosen for the next start, now it is still %2; help lies at %3"_qs.arg(
                  chosen, loadedLanguageName(), CRedirectionLinks::get(CRedirectionLinks::linkHelp, languages)));
    languages.changeLanguage(before);
}

/*! The data within the program. */
void CTour::references()
{
    const CPresetLibrary library;
    printLine(20, QLatin1StringView("presets"), tourPresets(library));
    printLine(21, QLatin1StringView("tags"), tourTags(library));
    printLine(22, QLatin1StringView("note"), tourNote(library));
    printLine(23, QLatin1StringView("history"), tourHistory(CFilmHistory()));
    printLine(24, QLatin1StringView("calibration"), tourCalibration(m_window.currentPath()));
}

/*! Another host like this one dies. It logs to its standard output: this one's log file is open. */
void CTour::crash()
{
    QProcess host;
    host.setWorkingDirectory(m_options.workFolder); // where the system may leave a file of its own
    host.start(QCoreApplication::applicationFilePath(),
               {u"--"_qs + CSettings::preferencesFilePathCommandLineOption(), m_options.preferencesFile, u"--data"_qs,
                m_options.workFolder, u"--console-log"_qs, u"--leave"_qs, u"--crash"_qs, u"signal"_qs,
                m_options.photos});
    const qint64 process = host.processId();
    const bool isOver = host.waitForFinished(crashPatienceMs);
    printLine(25, QLatin1StringView("crash"),
              isOver ? u"another lightbox %1; it left %2"_qs.arg(deathOf(host), dumpOf(process))
                     : u"another lightbox did not crash: %1"_qs.arg(host.errorString()));
}

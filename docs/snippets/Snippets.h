// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "baseDialogs/WidgetFromHWND.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <QtCore/QPointF>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class CIconViewer;
class CRetinaToolButton;
class CVerticalLabel;
class QAction;
class QAtomicInt;
class QComboBox;
class QImage;
class QObject;
class QPainter;
class QPixmap;
class QPoint;
class QPolygonF;
class QPushButton;
class QUrl;
class QWidget;

namespace ZYX_zglv6 {
class CAboutDlg;
class CSettingsPushButton;
class CustomZyxAppStyle;
class CZipCrashReport;
class ProgressPainter;
class QtSoapHttpTransport;
class QtSoapStruct;
class ZoomPainter;
} // namespace ZYX_zglv6

/*! The examples of the pages in docs/. The pages show them word for word, and tests/docs runs them. */
namespace Snippets {

// frame.cpp

QByteArray readCurve(const QString &path);
int exposureTimeMs(int framesPerSecond);
int numberOfNextFrame();
int runGuarded(const std::function<int()> &work);
bool isOlderThan(const QString &processName, quint32 major, quint32 minor);

struct MainWindowHandles
{
    quint64 withoutWindow;
    quint64 withWindow;
    quint64 windowsOwn;
};

/*! Makes the host's application object for as long as it runs. */
MainWindowHandles mainWindowHandles(int argc, char *argv[]);

// settings.cpp

void rememberZoom(int percent);
int lastZoom();
void restoreZoomOnChange(QObject *view, const std::function<void(int)> &applyZoom);
void runWithThrowAwaySettings(const std::function<void()> &work);
QStringList redirectedKeys(const QDir &folder);
QString preferencesFile(const QStringList &arguments);
QString greeting();

// storageLocation.cpp

void pointAtPreferences(const QString &path);
QString contactSheetPath(const QString &name);
bool isStorageKnown();

// loggerSupport.cpp

void startLog(const QString &name);
void keepOnlyErrors();

// eventLoop.cpp

void updateSoon(QObject *preview);
void blink(QObject *lamp, int period);
void stopBlinking(QObject *lamp);
bool develop(int seconds, int limitMs);
void waitForExposure(const QAtomicInt &framesLeft);

// interfaces.cpp

/*! What a slider shows that took its state from the blob of one with \a strength. */
int strengthAfterRestart(int strength);

// dialogs.cpp

struct Caption
{
    QString id;
    QString text;
};

void addRows(QWidget *panel, const QList<Caption> &captions);
bool mayClose(QWidget *window, const std::function<bool()> &save);
bool mayThrowAway(QWidget *window, const QString &name, bool &isAskedAgain);
void develop(ZYX_zglv6::ProgressPainter &painter, const std::function<void()> &compute);
void showScale(ZYX_zglv6::ZoomPainter &painter, double scale);

// baseDialogs.cpp

QString chooseTarget(QWidget *window, const QString &photograph);
QString chooseSource(QWidget &window, const QString &lastFolder);
void showInHost(HWND hostWindow, QWidget *panel);

// aboutDlg.cpp

ZYX_zglv6::CAboutDlg *showAboutBox(QWidget *window);

// actions.cpp

void registerCommands(QAction *save, QAction *grain, ZYX_zglv6::CSettingsPushButton *border, QObject *document);
void runBusy(const std::function<void()> &work);

// soap.cpp

QString exposureRequest(const QString &film, int speed);
ZYX_zglv6::QtSoapStruct *newFrame(const QString &name, const QList<int> &histogram);
QString answerOf(const QByteArray &document);
void ask(ZYX_zglv6::QtSoapHttpTransport &transport, const QUrl &service,
         const std::function<void(const QString &)> &tell);
void usePrefixForDarkroom();

// crashReport.cpp

std::unique_ptr<ZYX_zglv6::CZipCrashReport> gatherCrashReport(const QString &email, const QString &comments);
QString newestReport(const ZYX_zglv6::CZipCrashReport &report);
void sendReport(ZYX_zglv6::CZipCrashReport &report, const std::function<void(bool)> &tell);
bool isTextDumpWaiting();
bool copyThroughArchive(const QDir &from, const QDir &to, const QFileInfo &zipFile);

// embeddedData.cpp

QString note(const QString &presetId, const QString &language);
QString unpackCatalogue(const QDir &folder);

// files.cpp

QString saveCopy(const QString &photograph, const QString &name);
QStringList photographsBehind(const QString &photograph);
bool installForAllUsers(const std::string &folder, const QByteArray &presets);

// geometry.cpp

QPointF handleAt(const QPolygonF &photograph, const QPointF &mouse);

// hostExchange.cpp

bool handOver(const std::string &path, const char *pixels, int width, int height);
bool answer(const std::string &path, const std::function<bool(char *pixels, std::uint64_t size)> &develop);
int readAnswer(const std::string &path, const std::function<void(const char *pixels, std::uint64_t size)> &use);

// look.cpp

void startLook();
void dressWindow(QWidget &window);
void keepStill(ZYX_zglv6::CustomZyxAppStyle &style, QPushButton &shutter, QPushButton &zoom);
std::unique_ptr<QComboBox> newLanguageBox();
QUrl guideAddress();
void paintPreview(QPainter &painter, const QImage &photograph, const QPoint &place);
bool isVisiblyChanged(const QImage &before, const QImage &after);

// platform.cpp

QString versionText(const QString &path);

// uiControls.cpp

CIconViewer *addViewer(QWidget &frame, const QPixmap &photograph);
CRetinaToolButton *addBackButton(QWidget &frame);
CVerticalLabel *addYear(QWidget &frame, const QString &year);

} // namespace Snippets

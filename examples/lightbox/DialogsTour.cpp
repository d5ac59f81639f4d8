// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "DialogsTour.h"

#include "HelpMenu.h"
#include "MainWindow.h"
#include "PhotoView.h"

#include "aboutDlg/AboutDlg.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTextBrowser>

#include <memory>

using namespace ZYX_zglv6;

namespace {

constexpr int closingIntervalMs = 5;

QString tourZoom(CPhotoView &view)
{
    view.zoomToFit();
    const int before = view.zoom();
    view.zoomIn();
    const int after = view.zoom();
    view.zoomToFit();
    return u"zoom %1 %, then %2 %"_qs.arg(QString::number(before), QString::number(after));
}

QString tourAboutBox(CMainWindow &window, CHelpMenu &help)
{
    help.showAboutBox();
    const std::unique_ptr<CAboutDlg> about(window.findChild<CAboutDlg *>());
    if (!about) {
        return u"no about box"_qs;
    }
    QMetaObject::invokeMethod(about.get(), "onLinkClicked", Q_ARG(QString, u"licences"_qs)); // as by a click
    const QString licences = about->findChild<QTextBrowser *>()->toPlainText();
    return u"about %1, %2 letters of licences"_qs.arg(about->findChild<QLabel *>(u"productNameLabel"_qs)->text(),
                                                      QString::number(licences.size()));
}

QString tourDataFiles(CHelpMenu &help)
{
    int warnings = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&warnings] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (box && box->isVisible()) {
            ++warnings;
            box->reject();
        }
    });
    closer.start(closingIntervalMs);
    help.checkDataFiles();
    return u"%1 data files are missing"_qs.arg(warnings);
}

} // namespace

QString tourDialogs(CMainWindow &window)
{
    auto *help = window.findChild<CHelpMenu *>();
    return tourZoom(*window.findChild<CPhotoView *>()) + u"; " + tourAboutBox(window, *help) + u"; "
        + tourDataFiles(*help);
}

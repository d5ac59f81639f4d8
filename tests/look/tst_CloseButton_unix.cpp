// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/XServer_unix.h"

#include "utilsDll/look/GuiUtils.h"

#include <QtCore/QProcess>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

using namespace ZYX_zglv6;

namespace {

constexpr int serverTimeMs = 60'000;
constexpr unsigned closeFunction = 32; // MWM_FUNC_CLOSE

/*! The functions that the window with that id leaves to a window manager, by another program; 0 for none told. */
unsigned functionsOf(quint64 window)
{
    QProcess xprop;
    xprop.start(u"xprop"_qs, {u"-id"_qs, QString::number(window), u"-notype"_qs, u"_MOTIF_WM_HINTS"_qs});
    xprop.waitForFinished(serverTimeMs);
    const QList<QByteArray> numbers = xprop.readAllStandardOutput().split('=').value(1).split(',');
    return numbers.value(1).trimmed().toUInt(nullptr, 0);
}

} // namespace

/*! On an X server of the test's own. */
class tst_CloseButton_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closeButton_isAskedForAndNot();
    void otherWindows_keepTheirs();
    void unknownWindow_isLeftAlone();
};

void tst_CloseButton_unix::closeButton_isAskedForAndNot()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    enableWindowCloseButton(window.winId(), false);
    QVERIFY(!window.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));
    QTRY_VERIFY((functionsOf(window.winId()) & closeFunction) == 0 && functionsOf(window.winId()) != 0);
    enableWindowCloseButton(window.winId(), true);
    QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));
    QTRY_VERIFY((functionsOf(window.winId()) & closeFunction) != 0);
}

void tst_CloseButton_unix::otherWindows_keepTheirs()
{
    QWidget first;
    QWidget second;
    for (QWidget *window : {&first, &second}) {
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    enableWindowCloseButton(first.winId(), false);
    QVERIFY(!first.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));
    QVERIFY(second.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));
}

void tst_CloseButton_unix::unknownWindow_isLeftAlone()
{
    QWidget hidden; // has no window of the system yet
    enableWindowCloseButton(0, false);
    enableWindowCloseButton(0x7fff'ffff, false);
    QVERIFY(!hidden.windowHandle());
}

int main(int argc, char *argv[])
{
    const TestSupport::XServer server({u"xprop"_qs});
    if (!server.isRunning()) {
        return TestSupport::skipped;
    }
    const QApplication application(argc, argv);
    tst_CloseButton_unix test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_CloseButton_unix.moc"

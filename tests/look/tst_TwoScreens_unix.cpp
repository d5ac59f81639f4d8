// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/GuiUtils.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

using namespace ZYX_zglv6;

/*! On the second of two screens; the offscreen platform makes them. */
class tst_TwoScreens_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void centerDialogOnDesktop_takesTheScreenOfTheParent();
    void centerDialogOnDesktop_withoutParent_takesItsOwnScreen();
};

void tst_TwoScreens_unix::centerDialogOnDesktop_takesTheScreenOfTheParent()
{
    QWidget window;
    window.setGeometry(QRect(900, 100, 100, 100));
    window.show();
    QCOMPARE(window.screen()->name(), u"right"_qs);
    QDialog dialog(&window);
    dialog.setGeometry(QRect(3, 4, 201, 100));
    centerDialogOnDesktop(&dialog);
    QCOMPARE(dialog.pos(), QRect(800, 0, 640, 480).center() - QPoint(100, 49));
}

void tst_TwoScreens_unix::centerDialogOnDesktop_withoutParent_takesItsOwnScreen()
{
    QDialog dialog;
    dialog.setGeometry(QRect(900, 100, 201, 100));
    dialog.show();
    QCOMPARE(dialog.screen()->name(), u"right"_qs);
    centerDialogOnDesktop(&dialog);
    QCOMPARE(dialog.pos(), QRect(800, 0, 640, 480).center() - QPoint(100, 49));
}

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    QFile screens(folder.filePath(u"screens.json"_qs));
    if (!screens.open(QIODevice::WriteOnly)) {
        return 1;
    }
    screens.write(R"({"screens": [
        {"name": "left", "x": 0, "y": 0, "width": 800, "height": 600, "logicalDpi": 96, "dpr": 1},
        {"name": "right", "x": 800, "y": 0, "width": 640, "height": 480, "logicalDpi": 96, "dpr": 1}]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", QFile::encodeName(u"offscreen:configfile="_qs + screens.fileName()));
    QApplication application(argc, argv);
    tst_TwoScreens_unix test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TwoScreens_unix.moc"

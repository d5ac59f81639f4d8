// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/GuiUtils.h"

#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <windows.h>

using namespace ZYX_zglv6;

class tst_CloseButton_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closeItem_isGrayedAndEnabled();
    void unknownWindow_isLeftAlone();
};

void tst_CloseButton_win::closeItem_isGrayedAndEnabled()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(window.winId()), FALSE);
    const auto isGray = [menu] { return (GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED) != 0; };
    QVERIFY(!isGray());
    enableWindowCloseButton(window.winId(), false);
    QVERIFY(isGray());
    enableWindowCloseButton(window.winId(), true);
    QVERIFY(!isGray());
}

void tst_CloseButton_win::unknownWindow_isLeftAlone()
{
    enableWindowCloseButton(0, false);
    enableWindowCloseButton(0x7fff'ffff, false);
}

QTEST_MAIN(tst_CloseButton_win)
#include "tst_CloseButton_win.moc"

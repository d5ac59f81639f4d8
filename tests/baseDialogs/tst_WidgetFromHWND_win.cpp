// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/WidgetFromHWND.h"

#include <QtCore/QScopeGuard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <windows.h>

namespace {

HWND foreignWindow()
{
    return CreateWindowExW(0, L"STATIC", L"Foreign host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

HWND windowOf(const QWidget &widget)
{
    return reinterpret_cast<HWND>(widget.winId());
}

/*! Writes down which widgets are told that they are embedded, and whether they were children by then. */
class EmbeddingWatch : public QObject
{
public:
    EmbeddingWatch()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::EmbeddingControl) {
            told.append(object);
            parent = GetParent(windowOf(*qobject_cast<QWidget *>(object)));
        }
        return false;
    }

    QList<QObject *> told;
    HWND parent = nullptr;
};

} // namespace

class tst_WidgetFromHWND_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void window_isChildOfTheForeignOne();
    void destroyed_leavesTheForeignWindow();
    void foreignWindow_thatGoes_leavesTheWidget();
    void invalidParent_isNoCrash_data();
    void invalidParent_isNoCrash();
};

void tst_WidgetFromHWND_win::window_isChildOfTheForeignOne()
{
    const HWND foreign = foreignWindow();
    const auto end = qScopeGuard([foreign] { DestroyWindow(foreign); });
    const EmbeddingWatch watch;
    CWidgetFromHWND widget(foreign);
    QCOMPARE(GetParent(windowOf(widget)), foreign);
    QCOMPARE(GetWindowLongA(windowOf(widget), GWL_STYLE), LONG(WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN));
    QCOMPARE(watch.told, QList<QObject *>{&widget});
    QCOMPARE(watch.parent, foreign); // told last
    QCOMPARE(widget.parent(), nullptr);
    QVERIFY(!widget.isVisible());
    widget.show();
    QVERIFY(IsWindowVisible(windowOf(widget)));
    QCOMPARE(GetParent(windowOf(widget)), foreign);
}

void tst_WidgetFromHWND_win::destroyed_leavesTheForeignWindow()
{
    const HWND foreign = foreignWindow();
    const auto end = qScopeGuard([foreign] { DestroyWindow(foreign); });
    HWND child = nullptr;
    {
        const CWidgetFromHWND widget(foreign);
        child = windowOf(widget);
        QVERIFY(IsWindow(child));
    }
    QVERIFY(!IsWindow(child));
    QVERIFY(IsWindow(foreign));
}

void tst_WidgetFromHWND_win::foreignWindow_thatGoes_leavesTheWidget()
{
    const HWND foreign = foreignWindow();
    CWidgetFromHWND widget(foreign);
    widget.show();
    const HWND child = windowOf(widget);
    DestroyWindow(foreign);
    QVERIFY(!IsWindow(child));
    widget.hide();
}

void tst_WidgetFromHWND_win::invalidParent_isNoCrash_data()
{
    QTest::addColumn<quintptr>("parent");
    QTest::newRow("null") << quintptr(0);
    QTest::newRow("no window") << quintptr(0x7fff'fff0);
}

void tst_WidgetFromHWND_win::invalidParent_isNoCrash()
{
    QFETCH(const quintptr, parent);
    const EmbeddingWatch watch;
    CWidgetFromHWND widget(reinterpret_cast<HWND>(parent));
    QCOMPARE(watch.told, QList<QObject *>{&widget});
    QVERIFY(IsWindow(windowOf(widget)));
    QVERIFY(GetParent(windowOf(widget)) == nullptr || GetParent(windowOf(widget)) == GetDesktopWindow());
}

QTEST_MAIN(tst_WidgetFromHWND_win)
#include "tst_WidgetFromHWND_win.moc"

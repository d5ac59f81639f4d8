// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/XServer_unix.h"

#include "baseDialogs/WidgetFromHWND.h"

#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

constexpr int serverTimeMs = 20'000;
constexpr QColor paint(20, 200, 60);

HWND handleOf(quintptr id)
{
    return reinterpret_cast<HWND>(id); // NOLINT(performance-no-int-to-ptr)
}

/*! What another program sees of a window. */
QString told(const QStringList &options)
{
    QProcess xwininfo;
    xwininfo.start(u"xwininfo"_qs, options);
    xwininfo.waitForFinished(serverTimeMs);
    return QString::fromUtf8(xwininfo.readAllStandardOutput());
}

quintptr parentOf(quintptr window)
{
    static const QRegularExpression line(u"Parent window id: (0x[0-9a-f]+)"_qs);
    return line.match(told({u"-id"_qs, QString::number(window), u"-tree"_qs})).captured(1).toULongLong(nullptr, 16);
}

bool isViewable(quintptr window)
{
    return told({u"-id"_qs, QString::number(window), u"-stats"_qs}).contains(u"Map State: IsViewable");
}

/*! A program that has nothing to do with Qt, with one window at the left upper corner of the screen. */
class ForeignProgram
{
public:
    ForeignProgram()
    {
        m_process.setStandardOutputFile(QProcess::nullDevice());
        // without its other events, among which is the command over its child windows
        m_process.start(u"xev"_qs,
                        {u"-geometry"_qs, u"300x200+0+0"_qs, u"-name"_qs, u"Foreign host"_qs, u"-event"_qs,
                         u"owner_grab_button"_qs});
        static const QRegularExpression line(u"Window id: (0x[0-9a-f]+)"_qs);
        const auto isFound = [this] {
            window = line.match(told({u"-name"_qs, u"Foreign host"_qs})).captured(1).toULongLong(nullptr, 16);
            return window != 0;
        };
        static_cast<void>(QTest::qWaitFor(isFound, serverTimeMs));
    }

    ~ForeignProgram()
    {
        end();
    }

    Q_DISABLE_COPY_MOVE(ForeignProgram)

    void end()
    {
        m_process.kill();
        m_process.waitForFinished(serverTimeMs);
    }

    quintptr window = 0;

private:
    QProcess m_process;
};

/*! Writes down which widgets are told that they are embedded. */
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
        }
        return false;
    }

    QList<QObject *> told;
};

} // namespace

/*! On an X server of the test's own. */
class tst_WidgetFromHWND_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void window_isChildOfTheForeignOne();
    void window_isSeenInTheForeignOne();
    void widget_isParentlessAndToldOfItsEmbedding();
    void destroyed_leavesTheForeignWindow();
    void destroyed_leavesNoObjectBehind();
    void foreignProgram_thatEnds_leavesTheWidget();
    void invalidParent_isNoCrash_data();
    void invalidParent_isNoCrash();
};

void tst_WidgetFromHWND_unix::window_isChildOfTheForeignOne()
{
    const ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    const CWidgetFromHWND widget(handleOf(foreign.window));
    QTRY_COMPARE(parentOf(widget.winId()), foreign.window);
}

void tst_WidgetFromHWND_unix::window_isSeenInTheForeignOne()
{
    const ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    QTRY_VERIFY(isViewable(foreign.window));
    CWidgetFromHWND widget(handleOf(foreign.window));
    widget.setPalette(paint);
    widget.setGeometry(20, 30, 100, 80);
    widget.show();
    QTRY_VERIFY(isViewable(widget.winId()));
    QCOMPARE(parentOf(widget.winId()), foreign.window);
    const auto colorAt
        = [](QPoint place) { return QGuiApplication::primaryScreen()->grabWindow(0).toImage().pixelColor(place); };
    QTRY_COMPARE(colorAt(QPoint(70, 70)), paint);
    QVERIFY(colorAt(QPoint(10, 10)) != paint);
    QVERIFY(colorAt(QPoint(150, 70)) != paint);
}

void tst_WidgetFromHWND_unix::widget_isParentlessAndToldOfItsEmbedding()
{
    const ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    const EmbeddingWatch watch;
    const CWidgetFromHWND widget(handleOf(foreign.window));
    QCOMPARE(watch.told, QList<QObject *>{const_cast<CWidgetFromHWND *>(&widget)});
    QCOMPARE(widget.parent(), nullptr);
    QVERIFY(widget.isWindow());
    QVERIFY(!widget.isVisible());
}

void tst_WidgetFromHWND_unix::destroyed_leavesTheForeignWindow()
{
    const ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    quintptr window = 0;
    {
        CWidgetFromHWND widget(handleOf(foreign.window));
        widget.show();
        window = widget.winId();
        QTRY_VERIFY(isViewable(window));
    }
    QTRY_COMPARE(parentOf(window), quintptr(0)); // is gone
    QVERIFY(isViewable(foreign.window));
}

void tst_WidgetFromHWND_unix::destroyed_leavesNoObjectBehind()
{
    const ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    const QWindowList before = QGuiApplication::allWindows();
    QPointer<QWindow> stand;
    {
        const CWidgetFromHWND widget(handleOf(foreign.window));
        stand = widget.windowHandle()->parent();
        QVERIFY(stand);
        QCOMPARE(stand->winId(), WId(foreign.window));
    }
    QVERIFY(!stand);
    QCOMPARE(QGuiApplication::allWindows(), before);
}

void tst_WidgetFromHWND_unix::foreignProgram_thatEnds_leavesTheWidget()
{
    ForeignProgram foreign;
    QVERIFY(foreign.window != 0);
    auto widget = std::make_unique<CWidgetFromHWND>(handleOf(foreign.window));
    widget->show();
    QTRY_VERIFY(isViewable(widget->winId()));
    foreign.end();
    QTRY_COMPARE(parentOf(foreign.window), quintptr(0));
    widget->resize(50, 50);
    widget->hide();
    QTRY_COMPARE(parentOf(widget->winId()), quintptr(0)); // the window went with its parent
    widget.reset();
    QWidget other; // the connection to the server is in order
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
}

void tst_WidgetFromHWND_unix::invalidParent_isNoCrash_data()
{
    QTest::addColumn<quintptr>("parent");
    QTest::newRow("null") << quintptr(0);
    QTest::newRow("no window") << quintptr(0x1fff'fff0);
}

void tst_WidgetFromHWND_unix::invalidParent_isNoCrash()
{
    QFETCH(const quintptr, parent);
    const EmbeddingWatch watch;
    CWidgetFromHWND widget(handleOf(parent));
    QCOMPARE(watch.told, QList<QObject *>{&widget});
    const quintptr screen = parentOf(widget.winId());
    QVERIFY(screen != 0);
    QCOMPARE(parentOf(screen), quintptr(0)); // it stays on the screen
    widget.show();
    QTRY_VERIFY(isViewable(widget.winId()));
}

int main(int argc, char *argv[])
{
    const TestSupport::XServer server({u"xwininfo"_qs, u"xev"_qs});
    if (!server.isRunning()) {
        return TestSupport::skipped;
    }
    const QApplication application(argc, argv);
    tst_WidgetFromHWND_unix test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_WidgetFromHWND_unix.moc"

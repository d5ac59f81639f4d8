// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "actions/ActionCommands.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/actions/ActionManager.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

#include <array>
#include <cstddef>
#include <new>

using namespace ZYX_zglv6;

namespace {

enum class Wrong { Nothing, Object, Receiver, Slot, Twice, NotCheckable };
enum class Place { Nowhere, Menu, MenuLater, ToolBar, MenuBar, ToolBarAndMenu, MenuAndToolBar };

/*! The functions that reported failed assertions, in order. */
QStringList reportingFunctions(const TestSupport::TestLog &log)
{
    static const QRegularExpression form(
        u"^ERROR ZYX_zglv6::(.*): ASSERT in .*ActionManager(Proxy)?\\.cpp line \\d+$"_qs);
    QStringList functions;
    for (const QString &record : log.records()) {
        const QRegularExpressionMatch match = form.match(record);
        functions.append(match.hasMatch() ? match.captured(1) : record);
    }
    return functions;
}

void callOnAction(CActionManager &manager, QObject *action)
{
    QVERIFY(QMetaObject::invokeMethod(&manager, "onAction", Q_ARG(QObject *, action)));
}

} // namespace

class tst_ActionManagerRegistration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registration_reportsWrongArgumentsAndGoesOn_data();
    void registration_reportsWrongArgumentsAndGoesOn();
    void addAction_withNull_storesTheRecordAllTheSame();
    void addActionTwice_callsTheNewerSlotTwice();
    void addBooleanActionTwice_callsBothSlots();
    void addSettingsPushButtonActionTwice_callsBothSlots();
    void addBoolActionAbstractProxyTwice_callsTheNewerSlotTwice();
    void oneActionAsPlainAndBoolean_isNoDouble();
    void shortcut_ofAnActionInAMenu_worksInTheWholeApplication_data();
    void shortcut_ofAnActionInAMenu_worksInTheWholeApplication();
    void shortcut_ofARowsAction_staysAsItIs();
    void shortcut_ofAProxysAction_staysAsItIs();
    void newProxyAtTheAddressOfADeletedOne_isNoDouble();

private:
    TestSupport::Sandbox m_sandbox;
};

Q_DECLARE_METATYPE(Wrong)
Q_DECLARE_METATYPE(Place)

void tst_ActionManagerRegistration::registration_reportsWrongArgumentsAndGoesOn_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Wrong>("wrong");
    QTest::addColumn<QStringList>("functions");

    const QString addAction = u"CActionManager::addAction"_qs;
    QTest::newRow("plain, nothing wrong") << Kind::Plain << Wrong::Nothing << QStringList();
    QTest::newRow("plain, no action") << Kind::Plain << Wrong::Object << QStringList({addAction});
    QTest::newRow("plain, no receiver") << Kind::Plain << Wrong::Receiver << QStringList({addAction});
    QTest::newRow("plain, no slot") << Kind::Plain << Wrong::Slot << QStringList({addAction});
    QTest::newRow("plain, twice") << Kind::Plain << Wrong::Twice << QStringList({addAction});

    const QString addBoolean = u"CActionManager::addBooleanAction"_qs;
    const QString addProxy = u"CActionManager::addBoolActionAbstractProxy"_qs;
    const QString base = u"CBoolActionAbstractProxy::CBoolActionAbstractProxy"_qs;
    const QString actionProxy = u"CBoolActionProxy::CBoolActionProxy"_qs;
    QTest::newRow("boolean, nothing wrong") << Kind::Boolean << Wrong::Nothing << QStringList();
    QTest::newRow("boolean, no action") << Kind::Boolean << Wrong::Object
                                        << QStringList({addBoolean, base, actionProxy});
    QTest::newRow("boolean, no receiver") << Kind::Boolean << Wrong::Receiver << QStringList({addBoolean, addProxy});
    QTest::newRow("boolean, no slot") << Kind::Boolean << Wrong::Slot << QStringList({addBoolean, addProxy});
    QTest::newRow("boolean, twice") << Kind::Boolean << Wrong::Twice << QStringList({addBoolean});
    QTest::newRow("boolean, not checkable") << Kind::Boolean << Wrong::NotCheckable << QStringList({actionProxy});

    const QString addRow = u"CActionManager::addSettingsPushButtonAction"_qs;
    const QString rowProxy = u"CSettingsPushButtonActionProxy::CSettingsPushButtonActionProxy"_qs;
    QTest::newRow("row, nothing wrong") << Kind::Row << Wrong::Nothing << QStringList();
    QTest::newRow("row, no button") << Kind::Row << Wrong::Object << QStringList({addRow, base, rowProxy});
    QTest::newRow("row, no receiver") << Kind::Row << Wrong::Receiver << QStringList({addRow, addProxy});
    QTest::newRow("row, no slot") << Kind::Row << Wrong::Slot << QStringList({addRow, addProxy});
    QTest::newRow("row, twice") << Kind::Row << Wrong::Twice << QStringList({addRow});
    QTest::newRow("row, not checkable") << Kind::Row << Wrong::NotCheckable << QStringList({rowProxy});

    QTest::newRow("proxy, nothing wrong") << Kind::Proxy << Wrong::Nothing << QStringList();
    QTest::newRow("proxy, no proxy") << Kind::Proxy << Wrong::Object << QStringList({addProxy});
    QTest::newRow("proxy, no receiver") << Kind::Proxy << Wrong::Receiver << QStringList({addProxy});
    QTest::newRow("proxy, no slot") << Kind::Proxy << Wrong::Slot << QStringList({addProxy});
    QTest::newRow("proxy, twice") << Kind::Proxy << Wrong::Twice << QStringList({addProxy});
}

void tst_ActionManagerRegistration::registration_reportsWrongArgumentsAndGoesOn()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const Kind, kind);
    QFETCH(const Wrong, wrong);
    QFETCH(const QStringList, functions);

    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean && wrong != Wrong::NotCheckable);
    commands.row.setButtonCheckable(wrong != Wrong::NotCheckable);
    const char *slot = slotFor(kind);
    if (wrong == Wrong::Twice) {
        commands.registerIn(manager, kind, &receiver, slot);
    }
    commands.registerIn(manager, kind, wrong == Wrong::Receiver ? nullptr : &receiver,
                        wrong == Wrong::Slot ? nullptr : slot, wrong != Wrong::Object);
    QCOMPARE(reportingFunctions(log), functions);

    // It is registered, with what it was given: the command comes without any further report.
    if (wrong == Wrong::Object) {
        return;
    }
    commands.trigger(kind);
    QCOMPARE(reportingFunctions(log), functions);
    const bool isCallable = wrong != Wrong::Receiver && wrong != Wrong::Slot;
    QCOMPARE(calls.size(), isCallable ? (wrong == Wrong::Twice ? 2 : 1) : 0);
    QVERIFY(isReplayArmed(manager));
}

void tst_ActionManagerRegistration::addAction_withNull_storesTheRecordAllTheSame()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    manager.addAction(nullptr, &receiver, "run");
    QCOMPARE(reports.texts().size(), 1);
    callOnAction(manager, nullptr);
    QCOMPARE(reports.texts().size(), 2);
    QCOMPARE(calls, QStringList({u"run"_qs}));
}

void tst_ActionManagerRegistration::addActionTwice_callsTheNewerSlotTwice()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    QStringList otherCalls;
    ActionReceiver receiver(calls);
    ActionReceiver otherReceiver(otherCalls);
    CActionManager manager;
    QAction action;
    manager.addAction(&action, &receiver, "run");
    manager.addAction(&action, &otherReceiver, "runOther");
    QCOMPARE(reports.texts().size(), 1);
    action.trigger();
    QCOMPARE(calls, QStringList());
    QCOMPARE(otherCalls, QStringList({u"runOther"_qs, u"runOther"_qs}));
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManagerRegistration::addBooleanActionTwice_callsBothSlots()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QAction action;
    action.setCheckable(true);
    manager.addBooleanAction(&action, &receiver, "setOn");
    manager.addBooleanAction(&action, &receiver, "setOtherOn");
    QCOMPARE(reports.texts().size(), 1);
    QCOMPARE(action.findChildren<CBoolActionProxy *>().size(), 2);
    action.trigger();
    QCOMPARE(calls, QStringList({u"setOn true"_qs, u"setOtherOn true"_qs}));
}

void tst_ActionManagerRegistration::addSettingsPushButtonActionTwice_callsBothSlots()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.registerIn(manager, Kind::Row, &receiver, "setOn");
    commands.registerIn(manager, Kind::Row, &receiver, "setOtherOn");
    QCOMPARE(reports.texts().size(), 1);
    QCOMPARE(commands.row.findChildren<CSettingsPushButtonActionProxy *>().size(), 2);
    commands.row.clickButton();
    QCOMPARE(calls, QStringList({u"setOn true"_qs, u"setOtherOn true"_qs}));
}

void tst_ActionManagerRegistration::addBoolActionAbstractProxyTwice_callsTheNewerSlotTwice()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.registerIn(manager, Kind::Proxy, &receiver, "setOn");
    commands.registerIn(manager, Kind::Proxy, &receiver, "setOtherOn");
    QCOMPARE(reports.texts().size(), 1);
    QCOMPARE(manager.findChildren<CConnectionHelper *>().size(), 2);
    commands.proxy->flip();
    QCOMPARE(calls, QStringList({u"setOtherOn true"_qs, u"setOtherOn true"_qs}));
}

void tst_ActionManagerRegistration::oneActionAsPlainAndBoolean_isNoDouble()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QAction action;
    action.setCheckable(true);
    manager.addAction(&action, &receiver, "run");
    manager.addBooleanAction(&action, &receiver, "setOn");
    action.trigger();
    QCOMPARE(calls, QStringList({u"run"_qs, u"setOn true"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerRegistration::shortcut_ofAnActionInAMenu_worksInTheWholeApplication_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Place>("place");
    QTest::addColumn<Qt::ShortcutContext>("context");

    for (const Kind kind : {Kind::Plain, Kind::Boolean}) {
        const char *name = kind == Kind::Plain ? "plain" : "boolean";
        QTest::addRow("%s, nowhere", name) << kind << Place::Nowhere << Qt::WindowShortcut;
        QTest::addRow("%s, in a menu", name) << kind << Place::Menu << Qt::ApplicationShortcut;
        QTest::addRow("%s, put into a menu later", name) << kind << Place::MenuLater << Qt::WindowShortcut;
        QTest::addRow("%s, in a tool bar", name) << kind << Place::ToolBar << Qt::WindowShortcut;
        QTest::addRow("%s, in a menu bar", name) << kind << Place::MenuBar << Qt::WindowShortcut;
        QTest::addRow("%s, in a tool bar and a menu", name) << kind << Place::ToolBarAndMenu << Qt::ApplicationShortcut;
        QTest::addRow("%s, in a menu and a tool bar", name) << kind << Place::MenuAndToolBar << Qt::ApplicationShortcut;
    }
}

void tst_ActionManagerRegistration::shortcut_ofAnActionInAMenu_worksInTheWholeApplication()
{
    QFETCH(const Kind, kind);
    QFETCH(const Place, place);
    QFETCH(const Qt::ShortcutContext, context);

    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    QToolBar toolBar;
    QMenuBar menuBar;
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    const QList<QWidget *> widgets = place == Place::Menu ? QList<QWidget *>{&menu}
        : place == Place::ToolBar                         ? QList<QWidget *>{&toolBar}
        : place == Place::MenuBar                         ? QList<QWidget *>{&menuBar}
        : place == Place::ToolBarAndMenu                  ? QList<QWidget *>{&toolBar, &menu}
        : place == Place::MenuAndToolBar                  ? QList<QWidget *>{&menu, &toolBar}
                                                          : QList<QWidget *>{};
    for (QWidget *widget : widgets) {
        widget->addAction(&commands.action);
    }
    commands.registerIn(manager, kind, &receiver, slotFor(kind));
    if (place == Place::MenuLater) {
        menu.addAction(&commands.action);
    }
    QCOMPARE(commands.action.shortcutContext(), context);
}

void tst_ActionManagerRegistration::shortcut_ofARowsAction_staysAsItIs()
{
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    Commands commands;
    commands.row.addAction(&commands.action);
    menu.addAction(&commands.action);
    commands.registerIn(manager, Kind::Row, &receiver, "setOn");
    QCOMPARE(commands.action.shortcutContext(), Qt::WindowShortcut);
}

void tst_ActionManagerRegistration::shortcut_ofAProxysAction_staysAsItIs()
{
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    Commands commands;
    menu.addAction(&commands.action);
    commands.registerIn(manager, Kind::Proxy, &receiver, "setOn");
    QCOMPARE(commands.action.shortcutContext(), Qt::WindowShortcut);
}

void tst_ActionManagerRegistration::newProxyAtTheAddressOfADeletedOne_isNoDouble()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QObject owner;
    alignas(PlainBoolProxy) std::array<std::byte, sizeof(PlainBoolProxy)> place{};
    auto *older = new (place.data()) PlainBoolProxy(&owner);
    manager.addBoolActionAbstractProxy(older, &receiver, "setOn");
    older->~PlainBoolProxy();

    auto *newer = new (place.data()) PlainBoolProxy(&owner);
    manager.addBoolActionAbstractProxy(newer, &receiver, "setOtherOn");
    newer->flip();
    QCOMPARE(calls, QStringList({u"setOtherOn true"_qs}));
    QCOMPARE(reports.texts(), QStringList());
    newer->~PlainBoolProxy();
}

QTEST_MAIN(tst_ActionManagerRegistration)
#include "tst_ActionManagerRegistration.moc"

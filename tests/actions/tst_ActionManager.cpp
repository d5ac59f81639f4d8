// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "actions/ActionCommands.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/actions/ActionManager.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>

#include <array>
#include <memory>

using namespace ZYX_zglv6;

namespace {

void callOnAction(CActionManager &manager, QObject *action)
{
    QVERIFY(QMetaObject::invokeMethod(&manager, "onAction", Q_ARG(QObject *, action)));
}

void callOnBoolAction(CActionManager &manager, CBoolActionAbstractProxy *proxy, bool toggled)
{
    QVERIFY(QMetaObject::invokeMethod(&manager, "onBoolAction", Q_ARG(CBoolActionAbstractProxy *, proxy),
                                      Q_ARG(bool, toggled)));
}

} // namespace

class tst_ActionManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instance_isTheSameGateEachTime();
    void managerWithParent_goesWithIt();
    void metaObject_hasItsSlotsInOrderAndNoSignals();
    void trigger_callsTheSlotAtOnce_data();
    void trigger_callsTheSlotAtOnce();
    void row_setByTheProgram_isNoCommand();
    void onAction_withUnknownAction_reportsOnce();
    void onAction_withUnknownActionInABlock_reportsAgainAtTheReplay();
    void onAction_withoutAction_reportsEachTime_data();
    void onAction_withoutAction_reportsEachTime();
    void onAction_withoutActionInABlock_forgetsTheRememberedCommand();
    void onBoolAction_withUnknownProxy_reportsOnce();
    void onBoolAction_withUnknownProxyInABlock_switchesItOff();
    void onBoolAction_withNull_reportsEachTime();
    void onBoolAction_withNullInABlock_forgetsTheRememberedCommand();
    void trigger_ofADeletedReceiver_callsNothing_data();
    void trigger_ofADeletedReceiver_callsNothing();
    void trigger_hidesTheOpenMenuBeforeTheSlot_data();
    void trigger_hidesTheOpenMenuBeforeTheSlot();
    void replay_hidesTheOpenMenuBeforeTheSlot_data();
    void replay_hidesTheOpenMenuBeforeTheSlot();
    void commandThatGoesWithTheHiddenMenu_isCalledOnce_data();
    void commandThatGoesWithTheHiddenMenu_isCalledOnce();
    void triggerInABlock_leavesTheMenuOpen();
    void hideActivePopupMenu_hidesOnlyMenus();
    void hideActivePopupMenu_withoutPopup_doesNothing();
    void clear_neitherDisconnectsNorDeletes_data();
    void clear_neitherDisconnectsNorDeletes();
    void clear_letsEverythingBeRegisteredAnew();
    void controlRegisteredAnewAfterClear_reportsItsOldRegistrationOnce_data();
    void controlRegisteredAnewAfterClear_reportsItsOldRegistrationOnce();
    void saveBoolActionState_logsDeletedActionsUnderItsName();
    void saveBoolActionState_reportsDeletedActionsAndSavesTheOthers();
    void saveBoolActionState_reportsEachDeletedActionEachTime();
    void deletedActions_leaveTheOtherCommandsInPlace();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ActionManager::instance_isTheSameGateEachTime()
{
    CActionManager &manager = Singleton<CActionManager>::instance();
    QCOMPARE(&Singleton<CActionManager>::instance(), &manager);
    QCOMPARE(&CActionManager::instance(), &manager);
    QCOMPARE(manager.parent(), nullptr);

    QStringList calls;
    ActionReceiver receiver(calls);
    QAction action;
    manager.addAction(&action, &receiver, "run");
    Singleton<CActionManager>::instance().blockActions();
    action.trigger();
    QCOMPARE(calls, QStringList());
    manager.callLastAction();
    QCOMPARE(calls, QStringList({u"run"_qs}));
    manager.clear();
}

void tst_ActionManager::managerWithParent_goesWithIt()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<CActionManager> manager = new CActionManager(parent.get());
    QCOMPARE(manager->parent(), parent.get());
    QStringList calls;
    ActionReceiver receiver(calls);
    QAction action;
    manager->addAction(&action, &receiver, "run");
    action.trigger();
    QCOMPARE(calls, QStringList({u"run"_qs}));

    parent.reset();
    QVERIFY(manager.isNull());
    action.trigger();
    QCOMPARE(calls, QStringList({u"run"_qs}));
}

void tst_ActionManager::metaObject_hasItsSlotsInOrderAndNoSignals()
{
    const QMetaObject &meta = CActionManager::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::CActionManager");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);

    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        methods.append((method.access() == QMetaMethod::Public ? u"public "_qs : u"private "_qs)
                       + QString::fromLatin1(method.methodSignature()));
    }
    QCOMPARE(methods,
             QStringList({u"public blockActions()"_qs, u"public unBlockActions()"_qs, u"private onAction(QObject*)"_qs,
                          u"private onBoolAction(CBoolActionAbstractProxy*,bool)"_qs, u"private onTimer()"_qs}));
}

void tst_ActionManager::trigger_callsTheSlotAtOnce_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QStringList>("calls");

    const QStringList onAndOff({u"setOn true"_qs, u"setOn false"_qs});
    QTest::newRow("plain") << Kind::Plain << QStringList({u"run"_qs, u"run"_qs});
    QTest::newRow("boolean") << Kind::Boolean << onAndOff;
    QTest::newRow("row") << Kind::Row << onAndOff;
    QTest::newRow("proxy") << Kind::Proxy << onAndOff;
}

void tst_ActionManager::trigger_callsTheSlotAtOnce()
{
    QFETCH(const Kind, kind);
    QFETCH(const QStringList, calls);

    const TestSupport::AssertionReports reports;
    QStringList seen;
    ActionReceiver receiver(seen);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    commands.registerIn(manager, kind, &receiver, slotFor(kind));
    QVERIFY(!isReplayArmed(manager));

    commands.trigger(kind);
    QCOMPARE(seen, calls.first(1));
    QVERIFY(isReplayArmed(manager));
    commands.trigger(kind);
    QCOMPARE(seen, calls);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManager::row_setByTheProgram_isNoCommand()
{
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.registerIn(manager, Kind::Row, &receiver, "setOn");
    commands.row.checkButton(true);
    QCOMPARE(calls, QStringList());
    QVERIFY(!isReplayArmed(manager));
    QVERIFY(commands.row.isButtonChecked());
}

void tst_ActionManager::onAction_withUnknownAction_reportsOnce()
{
    const TestSupport::AssertionReports reports;
    CActionManager manager;
    QAction action;
    callOnAction(manager, &action);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(isReplayArmed(manager));
    callOnAction(manager, &action); // now it has a record, which is empty
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::onAction_withUnknownActionInABlock_reportsAgainAtTheReplay()
{
    const TestSupport::AssertionReports reports;
    CActionManager manager;
    QAction action;
    manager.blockActions();
    callOnAction(manager, &action);
    QCOMPARE(reports.texts().size(), 1);
    manager.unBlockActions();
    fireReplayTimer(manager);
    QCOMPARE(reports.texts().size(), 2);
}

void tst_ActionManager::onAction_withoutAction_reportsEachTime_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("null") << true;
    QTest::newRow("an object that is no action") << false;
}

void tst_ActionManager::onAction_withoutAction_reportsEachTime()
{
    QFETCH(const bool, isNull);
    const TestSupport::AssertionReports reports;
    QObject object;
    CActionManager manager;
    callOnAction(manager, isNull ? nullptr : &object);
    QCOMPARE(reports.texts().size(), 1);
    callOnAction(manager, isNull ? nullptr : &object);
    QCOMPARE(reports.texts().size(), 2);
}

void tst_ActionManager::onAction_withoutActionInABlock_forgetsTheRememberedCommand()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QAction action;
    manager.addAction(&action, &receiver, "run");
    manager.blockActions();
    action.trigger();
    callOnAction(manager, &receiver);
    QCOMPARE(reports.texts().size(), 1);
    manager.unBlockActions();
    fireReplayTimer(manager);
    QCOMPARE(calls, QStringList());
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::onBoolAction_withUnknownProxy_reportsOnce()
{
    const TestSupport::AssertionReports reports;
    CActionManager manager;
    Commands commands;
    callOnBoolAction(manager, commands.proxy, true);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(isReplayArmed(manager));
    callOnBoolAction(manager, commands.proxy, true);
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::onBoolAction_withUnknownProxyInABlock_switchesItOff()
{
    const TestSupport::AssertionReports reports;
    CActionManager manager;
    Commands commands;
    commands.proxy->setChecked(true);
    manager.blockActions();
    callOnBoolAction(manager, commands.proxy, true);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(!commands.proxy->isChecked()); // what an empty record holds
    manager.unBlockActions();
    fireReplayTimer(manager);
    QVERIFY(commands.proxy->isChecked());
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::onBoolAction_withNull_reportsEachTime()
{
    CActionManager manager;
    for (int time = 0; time < 2; ++time) {
        const TestSupport::AssertionReports reports;
        callOnBoolAction(manager, nullptr, true);
        QVERIFY(!reports.texts().isEmpty());
        static const QRegularExpression form(u"^ASSERT in .*ActionManager\\.cpp line \\d+$"_qs);
        QVERIFY2(form.match(reports.texts().first()).hasMatch(), qPrintable(reports.texts().first()));
        QVERIFY(isReplayArmed(manager));
    }
}

void tst_ActionManager::onBoolAction_withNullInABlock_forgetsTheRememberedCommand()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QAction action;
    manager.addAction(&action, &receiver, "run");
    manager.blockActions();
    action.trigger();
    callOnBoolAction(manager, nullptr, true);
    QCOMPARE(reports.texts().size(), 1);
    manager.unBlockActions();
    fireReplayTimer(manager);
    QCOMPARE(calls, QStringList());
}

void tst_ActionManager::trigger_ofADeletedReceiver_callsNothing_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("plain") << Kind::Plain << false;
    QTest::newRow("boolean") << Kind::Boolean << false;
    QTest::newRow("row") << Kind::Row << false;
    QTest::newRow("plain, in a block") << Kind::Plain << true;
    QTest::newRow("boolean, in a block") << Kind::Boolean << true;
    QTest::newRow("row, in a block") << Kind::Row << true;
}

void tst_ActionManager::trigger_ofADeletedReceiver_callsNothing()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, isBlocked);
    const TestSupport::AssertionReports reports;
    QStringList calls;
    auto receiver = std::make_unique<ActionReceiver>(calls);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    commands.registerIn(manager, kind, receiver.get(), slotFor(kind));
    if (isBlocked) {
        manager.blockActions();
        commands.trigger(kind);
        receiver.reset();
        manager.unBlockActions();
        fireReplayTimer(manager);
    } else {
        receiver.reset();
        commands.trigger(kind);
    }
    QCOMPARE(calls, QStringList());
    QCOMPARE(reports.texts(), QStringList());
    QCOMPARE(commands.row.isButtonChecked(), kind == Kind::Row); // the control has its new state all the same
    QCOMPARE(commands.action.isChecked(), kind == Kind::Boolean);
}

void tst_ActionManager::trigger_hidesTheOpenMenuBeforeTheSlot_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("plain") << Kind::Plain;
    QTest::newRow("boolean") << Kind::Boolean;
    QTest::newRow("row") << Kind::Row;
}

void tst_ActionManager::trigger_hidesTheOpenMenuBeforeTheSlot()
{
    QFETCH(const Kind, kind);
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    menu.addAction(u"entry"_qs);
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    commands.registerIn(manager, kind, &receiver, slotFor(kind));
    receiver.duringCall = [&] { calls.append(menu.isVisible() ? u"menu open"_qs : u"menu hidden"_qs); };

    menu.popup({});
    QCOMPARE(QApplication::activePopupWidget(), &menu);
    commands.trigger(kind);
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.last(), u"menu hidden"_qs);
}

void tst_ActionManager::replay_hidesTheOpenMenuBeforeTheSlot_data()
{
    trigger_hidesTheOpenMenuBeforeTheSlot_data();
}

void tst_ActionManager::replay_hidesTheOpenMenuBeforeTheSlot()
{
    QFETCH(const Kind, kind);
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    menu.addAction(u"entry"_qs);
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    commands.registerIn(manager, kind, &receiver, slotFor(kind));
    receiver.duringCall = [&] { calls.append(menu.isVisible() ? u"menu open"_qs : u"menu hidden"_qs); };

    manager.blockActions();
    commands.trigger(kind);
    manager.unBlockActions();
    menu.popup({});
    QVERIFY(menu.isVisible());
    fireReplayTimer(manager);
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.last(), u"menu hidden"_qs);
}

void tst_ActionManager::commandThatGoesWithTheHiddenMenu_isCalledOnce_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isReplay");
    QTest::newRow("plain") << Kind::Plain << false;
    QTest::newRow("boolean") << Kind::Boolean << false;
    QTest::newRow("row") << Kind::Row << false;
    QTest::newRow("proxy") << Kind::Proxy << false;
    QTest::newRow("plain, replayed") << Kind::Plain << true;
    QTest::newRow("boolean, replayed") << Kind::Boolean << true;
    QTest::newRow("row, replayed") << Kind::Row << true;
    QTest::newRow("proxy, replayed") << Kind::Proxy << true;
}

void tst_ActionManager::commandThatGoesWithTheHiddenMenu_isCalledOnce()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, isReplay);
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    auto commands = std::make_unique<Commands>();
    commands->action.setCheckable(kind == Kind::Boolean);
    commands->registerIn(manager, kind, &receiver, slotFor(kind));
    if (isReplay) {
        manager.blockActions();
        commands->trigger(kind);
        manager.unBlockActions();
    }
    QMenu menu;
    menu.addAction(u"entry"_qs);
    connect(&menu, &QMenu::aboutToHide, this, [&commands] { commands.reset(); });
    menu.popup({});
    if (isReplay) {
        fireReplayTimer(manager);
    } else {
        commands->trigger(kind);
    }
    QCOMPARE(commands, nullptr);
    QCOMPARE(calls, QStringList({kind == Kind::Plain ? u"run"_qs : u"setOn true"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManager::triggerInABlock_leavesTheMenuOpen()
{
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    QMenu menu;
    menu.addAction(u"entry"_qs);
    Commands commands;
    commands.registerIn(manager, Kind::Plain, &receiver, "run");
    manager.blockActions();
    menu.popup({});
    commands.action.trigger();
    QVERIFY(menu.isVisible());
}

void tst_ActionManager::hideActivePopupMenu_hidesOnlyMenus()
{
    CActionManager manager;
    QWidget popup(nullptr, Qt::Popup);
    popup.show();
    QCOMPARE(QApplication::activePopupWidget(), &popup);
    manager.hideActivePopupMenu();
    QVERIFY(popup.isVisible());

    QMenu menu;
    menu.addAction(u"entry"_qs);
    menu.popup({});
    QCOMPARE(QApplication::activePopupWidget(), &menu);
    manager.hideActivePopupMenu();
    QVERIFY(!menu.isVisible());
    QVERIFY(popup.isVisible());
}

void tst_ActionManager::hideActivePopupMenu_withoutPopup_doesNothing()
{
    CActionManager manager;
    QMainWindow window;
    window.show();
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    manager.hideActivePopupMenu();
    QVERIFY(window.isVisible());
}

void tst_ActionManager::clear_neitherDisconnectsNorDeletes_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("plain") << Kind::Plain;
    QTest::newRow("boolean") << Kind::Boolean;
    QTest::newRow("row") << Kind::Row;
    QTest::newRow("proxy") << Kind::Proxy;
}

void tst_ActionManager::clear_neitherDisconnectsNorDeletes()
{
    QFETCH(const Kind, kind);
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(kind == Kind::Boolean);
    commands.registerIn(manager, kind, &receiver, slotFor(kind));
    const auto helpers = manager.findChildren<CConnectionHelper *>().size();
    QCOMPARE(helpers, kind == Kind::Plain ? 0 : 1);

    manager.clear();
    QCOMPARE(manager.findChildren<CConnectionHelper *>().size(), helpers);
    commands.trigger(kind);
    QCOMPARE(reports.texts().size(), 1);
    QCOMPARE(calls, QStringList());
    commands.trigger(kind);
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::clear_letsEverythingBeRegisteredAnew()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(true);
    const QList<Kind> kinds{Kind::Plain, Kind::Boolean, Kind::Row, Kind::Proxy};
    for (int time = 0; time < 2; ++time) {
        for (const Kind kind : kinds) {
            commands.registerIn(manager, kind, &receiver, slotFor(kind));
        }
        if (time == 0) {
            manager.clear();
        }
    }
    QCOMPARE(reports.texts(), QStringList());
    commands.proxy->flip(); // two helpers by now
    QCOMPARE(calls, QStringList({u"setOn true"_qs, u"setOn true"_qs}));
}

void tst_ActionManager::controlRegisteredAnewAfterClear_reportsItsOldRegistrationOnce_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("boolean") << Kind::Boolean;
    QTest::newRow("row") << Kind::Row;
}

void tst_ActionManager::controlRegisteredAnewAfterClear_reportsItsOldRegistrationOnce()
{
    QFETCH(const Kind, kind);
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    Commands commands;
    commands.action.setCheckable(true);
    commands.registerIn(manager, kind, &receiver, "setOn");
    manager.clear();
    commands.registerIn(manager, kind, &receiver, "setOtherOn");
    QCOMPARE(reports.texts(), QStringList());

    commands.trigger(kind); // its older proxy is still there
    QCOMPARE(calls, QStringList({u"setOtherOn true"_qs}));
    QCOMPARE(reports.texts().size(), 1);
    commands.trigger(kind);
    QCOMPARE(calls, QStringList({u"setOtherOn true"_qs, u"setOtherOn false"_qs}));
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManager::saveBoolActionState_logsDeletedActionsUnderItsName()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    auto commands = std::make_unique<Commands>();
    commands->action.setCheckable(true);
    commands->registerIn(manager, Kind::Boolean, &receiver, "setOn");
    commands.reset();
    manager.blockActions();
    QCOMPARE(log.records().size(), 1);
    static const QRegularExpression form(u"^ERROR ZYX_zglv6::CActionManager::saveBoolActionState: "
                                         u"ASSERT_X_RETURN in .*ActionManager\\.cpp line \\d+: "
                                         u"Action was deleted!!!$"_qs);
    QVERIFY2(form.match(log.records().first()).hasMatch(), qPrintable(log.records().first()));
}

void tst_ActionManager::saveBoolActionState_reportsDeletedActionsAndSavesTheOthers()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    std::array<std::unique_ptr<Commands>, 9> commands;
    for (auto &each : commands) {
        each = std::make_unique<Commands>();
        each->registerIn(manager, Kind::Row, &receiver, "setOn");
        each->row.checkButton(true);
    }
    commands[0].reset();
    commands[4].reset();
    commands[8].reset();
    manager.blockActions();
    QCOMPARE(reports.texts().size(), 3);
    for (const QString &text : reports.texts()) {
        static const QRegularExpression form(
            u"^ASSERT_X_RETURN in .*ActionManager\\.cpp line \\d+: Action was deleted!!!$"_qs);
        QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
    }
    for (const std::size_t alive : {1U, 2U, 3U, 5U, 6U, 7U}) {
        commands.at(alive)->row.clickButton();
        QVERIFY(commands.at(alive)->row.isButtonChecked()); // back to the state that was saved
    }
    QCOMPARE(reports.texts().size(), 3);
}

void tst_ActionManager::saveBoolActionState_reportsEachDeletedActionEachTime()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    auto commands = std::make_unique<Commands>();
    commands->action.setCheckable(true);
    commands->registerIn(manager, Kind::Boolean, &receiver, "setOn");
    commands->registerIn(manager, Kind::Row, &receiver, "setOn");
    commands->registerIn(manager, Kind::Proxy, &receiver, "setOn");
    manager.saveBoolActionState();
    QCOMPARE(reports.texts(), QStringList());
    commands.reset();
    manager.saveBoolActionState();
    QCOMPARE(reports.texts().size(), 3);
    manager.blockActionForSomeTime();
    QCOMPARE(reports.texts().size(), 6);
}

void tst_ActionManager::deletedActions_leaveTheOtherCommandsInPlace()
{
    const TestSupport::AssertionReports reports;
    QStringList calls;
    ActionReceiver receiver(calls);
    CActionManager manager;
    std::array<std::unique_ptr<Commands>, 12> commands;
    for (auto &each : commands) {
        each = std::make_unique<Commands>();
        each->registerIn(manager, Kind::Row, &receiver, "setOn");
    }
    for (const std::size_t dead : {1U, 2U, 5U, 7U, 8U, 10U}) {
        commands.at(dead).reset();
    }
    for (const std::size_t alive : {0U, 3U, 4U, 6U, 9U, 11U}) {
        const auto reportCount = reports.texts().size();
        calls.clear();
        commands.at(alive)->row.clickButton();
        QCOMPARE(calls, QStringList({u"setOn true"_qs}));
        QCOMPARE(reports.texts().size(), reportCount + 6); // the six dead ones, and nothing of this one
    }
}

QTEST_MAIN(tst_ActionManager)
#include "tst_ActionManager.moc"

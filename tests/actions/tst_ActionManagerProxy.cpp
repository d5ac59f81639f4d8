// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "utilsDll/actions/ActionManagerProxy.h"
#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QToolButton>

#include <functional>
#include <memory>
#include <optional>

using namespace TestSupport;
using namespace ZYX_zglv6;

namespace {

/*! A proxy of no control in particular. */
class PlainProxy : public CBoolActionAbstractProxy
{
public:
    explicit PlainProxy(QObject *action)
        : CBoolActionAbstractProxy(action)
    {
    }

    void setChecked(bool checked) override
    {
        m_isChecked = checked;
    }

    bool isChecked() const override
    {
        return m_isChecked;
    }

    static std::optional<int> lastSlotOfQObject()
    {
        return virtualSlot(&PlainProxy::disconnectNotify);
    }

private:
    bool m_isChecked = false;
};

/*! How often what stands on \a button itself learns of its check mark during \a change. */
int countOfOwnReactions(QToolButton &button, const std::function<void()> &change)
{
    int count = 0;
    const QMetaObject::Connection connection
        = QObject::connect(&button, &QToolButton::toggled, &button, [&count] { ++count; });
    change();
    QObject::disconnect(connection);
    return count;
}

QToolButton *buttonOf(const CSettingsPushButton &row)
{
    return row.findChild<QToolButton *>();
}

/*! The reports without the line, "form in file: text". */
QStringList withoutPlaces(const QStringList &reports)
{
    static const QRegularExpression place(u" in \\S*ActionManagerProxy\\.cpp line \\d+"_qs);
    QStringList result = reports;
    result.replaceInStrings(place, u" here"_qs);
    return result;
}

QStringList ownMethods(const QMetaObject &meta)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? u"signal "_qs : u"slot "_qs;
        const QString access = method.access() == QMetaMethod::Private ? u"private "_qs : QString();
        methods.append(access + kind + QString::fromLatin1(method.methodSignature()));
    }
    return methods;
}

} // namespace

class tst_ActionManagerProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjects_haveTheirMethods();
    void slots_areInTheirOrder();
    void abstractProxy_isAChildOfTheControl();
    void abstractProxy_ofNull_reports();
    void actionProxy_isAChildOfTheAction();
    void actionProxy_passesOnTheUsersTriggers();
    void actionProxy_setChecked_setsTheActionWithoutSignals_data();
    void actionProxy_setChecked_setsTheActionWithoutSignals();
    void actionProxy_setChecked_keepsBlockedSignalsBlocked_data();
    void actionProxy_setChecked_keepsBlockedSignalsBlocked();
    void actionProxy_isChecked_isTheActions();
    void actionProxy_ofPlainAction_reportsAndWorksOtherwise();
    void actionProxy_ofNull_reports();
    void actionProxy_diesWithTheAction();
    void actionProxy_isChecked_withoutAction_reports();
    void actionProxy_setChecked_withoutAction_doesNothing();
    void buttonProxy_isAChildOfTheButton();
    void buttonProxy_passesOnTheUsersClicks();
    void buttonProxy_passesOnNoChangeByTheProgram();
    void buttonProxy_setChecked_setsTheButtonWithoutSignals_data();
    void buttonProxy_setChecked_setsTheButtonWithoutSignals();
    void buttonProxy_setChecked_letsTheInnerButtonReact();
    void buttonProxy_setChecked_keepsBlockedSignalsBlocked_data();
    void buttonProxy_setChecked_keepsBlockedSignalsBlocked();
    void buttonProxy_isChecked_isTheButtons();
    void buttonProxy_ofPlainButton_reportsAndWorksOtherwise();
    void buttonProxy_ofRowWithoutInnerButton_reports();
    void buttonProxy_ofNull_reports();
    void buttonProxy_diesWithTheButton();
    void buttonProxy_isChecked_withoutButton_reports();
    void buttonProxy_setChecked_withoutButton_doesNothing();
    void buttonProxy_withoutInnerButton_isUnchecked();
    void connectionHelper_addsTheProxy();
    void connectionHelper_isAChildOfItsParent();
    void connectionHelper_tellsProxiesApart();
    void connectionHelper_staysSilentOnSetChecked();
    void connectionHelper_outlivesItsProxy();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ActionManagerProxy::metaObjects_haveTheirMethods()
{
    const QMetaObject &base = CBoolActionAbstractProxy::staticMetaObject;
    QCOMPARE(base.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(base), QStringList(u"signal triggered(bool)"_qs));
    QCOMPARE(CBoolActionProxy::staticMetaObject.superClass(), &base);
    QCOMPARE(ownMethods(CBoolActionProxy::staticMetaObject), QStringList());
    QCOMPARE(CSettingsPushButtonActionProxy::staticMetaObject.superClass(), &base);
    QCOMPARE(ownMethods(CSettingsPushButtonActionProxy::staticMetaObject), QStringList());
    QCOMPARE(CConnectionHelper::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(
        ownMethods(CConnectionHelper::staticMetaObject),
        QStringList({u"signal actionTriggered(CBoolActionAbstractProxy*,bool)"_qs, u"private slot onAction(bool)"_qs}));
    QCOMPARE(CConnectionHelper::staticMetaObject.className(), "ZYX_zglv6::CConnectionHelper");
}

void tst_ActionManagerProxy::slots_areInTheirOrder()
{
    const auto setting = virtualSlot(&CBoolActionAbstractProxy::setChecked);
    const auto last = PlainProxy::lastSlotOfQObject();
    if (!setting) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*setting, *last + 1);
    QCOMPARE(*virtualSlot(&CBoolActionAbstractProxy::isChecked), *setting + 1);
    QCOMPARE(*virtualSlot(&CBoolActionProxy::setChecked), *setting);
    QCOMPARE(*virtualSlot(&CSettingsPushButtonActionProxy::isChecked), *setting + 1);
}

void tst_ActionManagerProxy::abstractProxy_isAChildOfTheControl()
{
    const AssertionReports reports;
    QObject control;
    QPointer<PlainProxy> proxy = new PlainProxy(&control);
    QCOMPARE(proxy->parent(), &control);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::abstractProxy_ofNull_reports()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    const PlainProxy proxy(nullptr);
    QCOMPARE(proxy.parent(), nullptr);
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(u"ASSERT here"_qs));
    QCOMPARE(withoutPlaces(log.records()),
             QStringList(u"ERROR ZYX_zglv6::CBoolActionAbstractProxy::CBoolActionAbstractProxy: ASSERT here"_qs));
}

void tst_ActionManagerProxy::actionProxy_isAChildOfTheAction()
{
    const AssertionReports reports;
    QAction action;
    action.setCheckable(true);
    const auto *proxy = new CBoolActionProxy(&action);
    QCOMPARE(proxy->parent(), &action);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::actionProxy_passesOnTheUsersTriggers()
{
    QAction action;
    action.setCheckable(true);
    auto *proxy = new CBoolActionProxy(&action);
    const QSignalSpy spy(proxy, &CBoolActionProxy::triggered);
    action.trigger();
    action.trigger();
    QCOMPARE(spy, (QList<QVariantList>{{true}, {false}}));
    action.setChecked(true); // by the program
    action.toggle();
    QCOMPARE(spy.size(), 2);
}

void tst_ActionManagerProxy::actionProxy_setChecked_setsTheActionWithoutSignals_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");

    QTest::newRow("check") << false << true;
    QTest::newRow("uncheck") << true << false;
    QTest::newRow("stay checked") << true << true;
    QTest::newRow("stay unchecked") << false << false;
}

void tst_ActionManagerProxy::actionProxy_setChecked_setsTheActionWithoutSignals()
{
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    QAction action;
    action.setCheckable(true);
    action.setChecked(before);
    auto *proxy = new CBoolActionProxy(&action);
    const QSignalSpy toggled(&action, &QAction::toggled);
    const QSignalSpy changed(&action, &QAction::changed);
    const QSignalSpy triggered(proxy, &CBoolActionProxy::triggered);
    proxy->setChecked(after);
    QCOMPARE(action.isChecked(), after);
    QCOMPARE(toggled.size() + changed.size() + triggered.size(), 0);
    action.trigger(); // signals come again
    QCOMPARE(triggered, QList<QVariantList>{{!after}});
}

void tst_ActionManagerProxy::actionProxy_setChecked_keepsBlockedSignalsBlocked_data()
{
    QTest::addColumn<bool>("isBlocked");

    QTest::newRow("blocked") << true;
    QTest::newRow("free") << false;
}

void tst_ActionManagerProxy::actionProxy_setChecked_keepsBlockedSignalsBlocked()
{
    QFETCH(const bool, isBlocked);
    QAction action;
    action.setCheckable(true);
    auto *proxy = new CBoolActionProxy(&action);
    action.blockSignals(isBlocked);
    proxy->setChecked(true);
    QCOMPARE(action.signalsBlocked(), isBlocked);
    QVERIFY(action.isChecked());
}

void tst_ActionManagerProxy::actionProxy_isChecked_isTheActions()
{
    QAction action;
    action.setCheckable(true);
    const auto *proxy = new CBoolActionProxy(&action);
    QVERIFY(!proxy->isChecked());
    action.setChecked(true);
    QVERIFY(proxy->isChecked());
}

void tst_ActionManagerProxy::actionProxy_ofPlainAction_reportsAndWorksOtherwise()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    QAction action;
    auto *proxy = new CBoolActionProxy(&action);
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(u"ASSERT here"_qs));
    QCOMPARE(withoutPlaces(log.records()),
             QStringList(u"ERROR ZYX_zglv6::CBoolActionProxy::CBoolActionProxy: ASSERT here"_qs));

    const QSignalSpy spy(proxy, &CBoolActionProxy::triggered);
    action.trigger();
    QCOMPARE(spy, QList<QVariantList>{{false}});
    action.setCheckable(true);
    proxy->setChecked(true);
    QVERIFY(action.isChecked() && proxy->isChecked());
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManagerProxy::actionProxy_ofNull_reports()
{
    const AssertionReports reports;
    const CBoolActionProxy proxy(nullptr);
    // Of the base class and of this one.
    QCOMPARE(withoutPlaces(reports.texts()), QStringList({u"ASSERT here"_qs, u"ASSERT here"_qs}));
    QCOMPARE(proxy.parent(), nullptr);
}

void tst_ActionManagerProxy::actionProxy_diesWithTheAction()
{
    auto action = std::make_unique<QAction>();
    action->setCheckable(true);
    const QPointer<CBoolActionProxy> proxy = new CBoolActionProxy(action.get());
    action.reset();
    QVERIFY(proxy == nullptr);
}

void tst_ActionManagerProxy::actionProxy_isChecked_withoutAction_reports()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    auto action = std::make_unique<QAction>();
    action->setCheckable(true);
    action->setChecked(true);
    const auto proxy = std::make_unique<CBoolActionProxy>(action.get());
    proxy->setParent(nullptr); // so that it outlives the action
    action.reset();
    QVERIFY(!proxy->isChecked());
    const QString text = u"ASSERT_X_RETURN_VALUE here: Action was removed!!!"_qs;
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(text));
    QCOMPARE(withoutPlaces(log.records()), QStringList(u"ERROR ZYX_zglv6::CBoolActionProxy::isChecked: " + text));
}

void tst_ActionManagerProxy::actionProxy_setChecked_withoutAction_doesNothing()
{
    const AssertionReports reports;
    auto action = std::make_unique<QAction>();
    action->setCheckable(true);
    const auto proxy = std::make_unique<CBoolActionProxy>(action.get());
    proxy->setParent(nullptr);
    action.reset();
    proxy->setChecked(true);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::buttonProxy_isAChildOfTheButton()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const auto *proxy = new CSettingsPushButtonActionProxy(&row);
    QCOMPARE(proxy->parent(), &row);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::buttonProxy_passesOnTheUsersClicks()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    const QSignalSpy spy(proxy, &CSettingsPushButtonActionProxy::triggered);
    row.show();
    QTest::mouseClick(buttonOf(row), Qt::LeftButton);
    row.click();
    row.clickButton();
    QCOMPARE(spy, (QList<QVariantList>{{true}, {false}, {true}}));
}

void tst_ActionManagerProxy::buttonProxy_passesOnNoChangeByTheProgram()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    const QSignalSpy triggered(proxy, &CSettingsPushButtonActionProxy::triggered);
    const QSignalSpy toggled(&row, &CSettingsPushButton::toggled);
    row.checkButton(true);
    buttonOf(row)->toggle();
    QCOMPARE(toggled.size(), 2);
    QCOMPARE(triggered.size(), 0);
}

void tst_ActionManagerProxy::buttonProxy_setChecked_setsTheButtonWithoutSignals_data()
{
    actionProxy_setChecked_setsTheActionWithoutSignals_data();
}

void tst_ActionManagerProxy::buttonProxy_setChecked_setsTheButtonWithoutSignals()
{
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.checkButton(before);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    const QSignalSpy toggled(&row, &CSettingsPushButton::toggled);
    const QSignalSpy clicked(&row, &CSettingsPushButton::clicked);
    const QSignalSpy triggered(proxy, &CSettingsPushButtonActionProxy::triggered);
    proxy->setChecked(after);
    QCOMPARE(row.isButtonChecked(), after);
    QCOMPARE(toggled.size() + clicked.size() + triggered.size(), 0);
    row.click(); // signals come again
    QCOMPARE(triggered, QList<QVariantList>{{!after}});
}

void tst_ActionManagerProxy::buttonProxy_setChecked_letsTheInnerButtonReact()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    const QSignalSpy toggled(&row, &CSettingsPushButton::toggled);
    QCOMPARE(countOfOwnReactions(*buttonOf(row), [proxy] { proxy->setChecked(true); }), 1);
    QCOMPARE(countOfOwnReactions(*buttonOf(row), [proxy] { proxy->setChecked(true); }), 0);
    QCOMPARE(toggled.size(), 0);
}

void tst_ActionManagerProxy::buttonProxy_setChecked_keepsBlockedSignalsBlocked_data()
{
    actionProxy_setChecked_keepsBlockedSignalsBlocked_data();
}

void tst_ActionManagerProxy::buttonProxy_setChecked_keepsBlockedSignalsBlocked()
{
    QFETCH(const bool, isBlocked);
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    row.blockSignals(isBlocked);
    bool wasRowBlocked = false;
    bool wasButtonBlocked = true;
    connect(buttonOf(row), &QToolButton::toggled, this, [&row, &wasRowBlocked, &wasButtonBlocked] {
        wasRowBlocked = row.signalsBlocked();
        wasButtonBlocked = buttonOf(row)->signalsBlocked();
    });
    proxy->setChecked(true);
    QVERIFY(wasRowBlocked);
    QVERIFY(!wasButtonBlocked);
    QCOMPARE(row.signalsBlocked(), isBlocked);
    QVERIFY(row.isButtonChecked());
}

void tst_ActionManagerProxy::buttonProxy_isChecked_isTheButtons()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const auto *proxy = new CSettingsPushButtonActionProxy(&row);
    QVERIFY(!proxy->isChecked());
    row.checkButton(true);
    QVERIFY(proxy->isChecked());
}

void tst_ActionManagerProxy::buttonProxy_ofPlainButton_reportsAndWorksOtherwise()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    CSettingsPushButton row;
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(u"ASSERT here"_qs));
    QCOMPARE(withoutPlaces(log.records()),
             QStringList(
                 u"ERROR ZYX_zglv6::CSettingsPushButtonActionProxy::CSettingsPushButtonActionProxy: ASSERT here"_qs));

    const QSignalSpy spy(proxy, &CSettingsPushButtonActionProxy::triggered);
    row.click();
    QCOMPARE(spy, QList<QVariantList>{{false}});
    QCOMPARE(reports.texts().size(), 1);
}

void tst_ActionManagerProxy::buttonProxy_ofRowWithoutInnerButton_reports()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    delete buttonOf(row);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(u"ASSERT here"_qs));
    const QSignalSpy spy(proxy, &CSettingsPushButtonActionProxy::triggered);
    Q_EMIT row.clicked(true); // the connection is there
    QCOMPARE(spy, QList<QVariantList>{{true}});
}

void tst_ActionManagerProxy::buttonProxy_ofNull_reports()
{
    const AssertionReports reports;
    const CSettingsPushButtonActionProxy proxy(nullptr);
    // Of the base class and of this one.
    QCOMPARE(withoutPlaces(reports.texts()), QStringList({u"ASSERT here"_qs, u"ASSERT here"_qs}));
    QCOMPARE(proxy.parent(), nullptr);
}

void tst_ActionManagerProxy::buttonProxy_diesWithTheButton()
{
    auto row = std::make_unique<CSettingsPushButton>();
    row->setButtonCheckable(true);
    const QPointer<CSettingsPushButtonActionProxy> proxy = new CSettingsPushButtonActionProxy(row.get());
    row.reset();
    QVERIFY(proxy == nullptr);
}

void tst_ActionManagerProxy::buttonProxy_isChecked_withoutButton_reports()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    auto row = std::make_unique<CSettingsPushButton>();
    row->setButtonCheckable(true);
    row->checkButton(true);
    const auto proxy = std::make_unique<CSettingsPushButtonActionProxy>(row.get());
    proxy->setParent(nullptr); // so that it outlives the row
    row.reset();
    QVERIFY(!proxy->isChecked());
    const QString text = u"ASSERT_X_RETURN_VALUE here: Action was removed!!!"_qs;
    QCOMPARE(withoutPlaces(reports.texts()), QStringList(text));
    QCOMPARE(withoutPlaces(log.records()),
             QStringList(u"ERROR ZYX_zglv6::CSettingsPushButtonActionProxy::isChecked: " + text));
}

void tst_ActionManagerProxy::buttonProxy_setChecked_withoutButton_doesNothing()
{
    const AssertionReports reports;
    auto row = std::make_unique<CSettingsPushButton>();
    row->setButtonCheckable(true);
    const auto proxy = std::make_unique<CSettingsPushButtonActionProxy>(row.get());
    proxy->setParent(nullptr);
    row.reset();
    proxy->setChecked(true);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::buttonProxy_withoutInnerButton_isUnchecked()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.checkButton(true);
    auto *proxy = new CSettingsPushButtonActionProxy(&row);
    delete buttonOf(row);
    QVERIFY(!proxy->isChecked());
    proxy->setChecked(true);
    QVERIFY(!proxy->isChecked());
    QVERIFY(!row.signalsBlocked());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerProxy::connectionHelper_addsTheProxy()
{
    QAction action;
    action.setCheckable(true);
    auto *proxy = new CBoolActionProxy(&action);
    CConnectionHelper helper(proxy, nullptr);
    QList<QPair<CBoolActionAbstractProxy *, bool>> calls;
    connect(&helper, &CConnectionHelper::actionTriggered, this,
            [&calls](CBoolActionAbstractProxy *sender, bool checked) {
                calls.append({sender, checked});
            });
    action.trigger();
    action.trigger();
    Q_EMIT proxy->triggered(true);
    QVERIFY(QMetaObject::invokeMethod(&helper, "onAction", Q_ARG(bool, false)));
    const QList<QPair<CBoolActionAbstractProxy *, bool>> expected{
        {proxy, true}, {proxy, false}, {proxy, true}, {proxy, false}};
    QCOMPARE(calls, expected);
}

void tst_ActionManagerProxy::connectionHelper_isAChildOfItsParent()
{
    QObject control;
    auto parent = std::make_unique<QObject>();
    auto *proxy = new PlainProxy(&control);
    const QPointer<CConnectionHelper> helper = new CConnectionHelper(proxy, parent.get());
    QCOMPARE(helper->parent(), parent.get());
    parent.reset();
    QVERIFY(helper == nullptr);
    QCOMPARE(proxy->parent(), &control); // not owned by the helper
}

void tst_ActionManagerProxy::connectionHelper_tellsProxiesApart()
{
    QObject control;
    auto *first = new PlainProxy(&control);
    auto *second = new PlainProxy(&control);
    CConnectionHelper firstHelper(first, nullptr);
    CConnectionHelper secondHelper(second, nullptr);
    QList<CBoolActionAbstractProxy *> senders;
    for (const CConnectionHelper *helper : {&firstHelper, &secondHelper}) {
        connect(helper, &CConnectionHelper::actionTriggered, this,
                [&senders](CBoolActionAbstractProxy *sender) { senders.append(sender); });
    }
    Q_EMIT second->triggered(true);
    Q_EMIT first->triggered(true);
    QCOMPARE(senders, (QList<CBoolActionAbstractProxy *>{second, first}));
}

void tst_ActionManagerProxy::connectionHelper_staysSilentOnSetChecked()
{
    QAction action;
    action.setCheckable(true);
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    int count = 0;
    const QList<CBoolActionAbstractProxy *> proxies{new CBoolActionProxy(&action),
                                                    new CSettingsPushButtonActionProxy(&row)};
    QObject parent;
    for (CBoolActionAbstractProxy *proxy : proxies) {
        const auto *helper = new CConnectionHelper(proxy, &parent);
        connect(helper, &CConnectionHelper::actionTriggered, this, [&count] { ++count; });
        proxy->setChecked(true);
        proxy->setChecked(false);
    }
    QCOMPARE(count, 0);
    action.trigger();
    row.click();
    QCOMPARE(count, 2);
}

void tst_ActionManagerProxy::connectionHelper_outlivesItsProxy()
{
    auto control = std::make_unique<QObject>();
    CConnectionHelper helper(new PlainProxy(control.get()), nullptr);
    const QSignalSpy spy(&helper, &CConnectionHelper::actionTriggered);
    QVERIFY(spy.isValid());
    control.reset();
    QCOMPARE(spy.size(), 0);
}

QTEST_MAIN(tst_ActionManagerProxy)
#include "tst_ActionManagerProxy.moc"

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "actions/ActionCommands.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <stdexcept>

using namespace ZYX_zglv6;

namespace {

void show()
{
    CMessageBox::warning(nullptr, u"Film"_qs, u"Full."_qs, QMessageBox::Ok, QMessageBox::Ok, true);
}

void expectCaught(int loops)
{
    for (int loop = 0; loop < loops; ++loop) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Qt has caught an exception thrown from an event"_qs));
    }
}

} // namespace

/*! Exceptions from slots, through a box. What Qt's own frames lose on their way is suppressed in leaks.supp. */
class tst_MessageBoxExceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exception_goesOnAndLeavesNoBox();
    void exception_passesAWaitingBox();
    void exception_opensTheGate();

private:
    TestSupport::Sandbox m_sandbox;
    BoxDriver m_driver;
};

void tst_MessageBoxExceptions::exception_goesOnAndLeavesNoBox()
{
    RUN_IN_FRESH_PROCESS(); // what the platform's dispatcher makes of it is not other tests' concern
    m_driver.onNext([](QMessageBox & /*box*/) { throw std::runtime_error("from an event handler"); });
    expectCaught(1);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, show());
    QVERIFY(visibleBoxes().isEmpty());
    m_driver.clickNext(u"OK"_qs);
    show(); // waits for none
    QCOMPARE(m_driver.shownCount, 2);
    QCOMPARE(m_driver.unexpectedCount, 0);
}

void tst_MessageBoxExceptions::exception_passesAWaitingBox()
{
    RUN_IN_FRESH_PROCESS();
    bool hasReturned = false;
    m_driver.onNext([&](QMessageBox & /*first*/) {
        QTimer::singleShot(0, this, [&] {
            QTimer::singleShot(0, this, [] { throw std::runtime_error("from an event handler"); });
            show();
            hasReturned = true;
        });
    });
    expectCaught(2);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, show());
    QVERIFY(visibleBoxes().isEmpty());
    QCOMPARE(m_driver.shownCount, 1);
    QVERIFY(!hasReturned);
}

void tst_MessageBoxExceptions::exception_opensTheGate()
{
    RUN_IN_FRESH_PROCESS();
    QStringList calls;
    ActionReceiver receiver(calls);
    QAction action;
    CActionManager &gate = Singleton<CActionManager>::instance();
    gate.addAction(&action, &receiver, "run");
    m_driver.onNext([&](QMessageBox & /*box*/) {
        action.trigger();
        throw std::runtime_error("from an event handler");
    });
    expectCaught(1);
    QVERIFY_THROWS_EXCEPTION(
        std::runtime_error, CMessageBox::saveDiscardCancelMessage(nullptr, u"Film"_qs, u"Save?"_qs, QMessageBox::Save));
    gate.callLastAction();
    QCOMPARE(calls, QStringList());
    action.trigger();
    QCOMPARE(calls, QStringList({u"run"_qs}));
}

QTEST_MAIN(tst_MessageBoxExceptions)
#include "tst_MessageBoxExceptions.moc"

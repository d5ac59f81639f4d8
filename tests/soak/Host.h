// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soak/CommandLedger.h"
#include "soak/DelayedCalls.h"
#include "soak/Panel.h"
#include "soak/Watchdog.h"
#include "soak/Work.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtWidgets/QMainWindow>

#include <functional>
#include <memory>
#include <random>

class QLineEdit;
class QToolButton;

/*! The host: a window, and random steps. */
class Host : public QObject
{
    Q_OBJECT

public:
    explicit Host(quint32 seed);

    /*! Works for \a seconds, and on until each thing has come once; ends all that it began and looks whether it has. */
    void run(int seconds);
    bool report() const;

private:
    struct Operation
    {
        const char *name;
        unsigned weight;
        bool isForTopLevel; // needs to be outside of all slots and waits
        void (Host::*function)();
    };

    static const QList<Operation> &operations();
    void step();
    void quietPhase();
    void finish();
    QStringList missing() const;
    void waitForReplayTimer();
    void checkProbe();
    bool waitUntil(const std::function<bool()> &isDone, const QString &problem);

    quint32 chance(quint32 count);
    bool oneOf(quint32 count);
    Panel &anyPanel();
    ZYX_zglv6::CSettingsPushButton *anyRow();
    bool isInputHeldOut() const;
    void giveInput(const std::function<void()> &input);
    void whileNested(const std::function<void()> &work);
    bool pumpEvents(bool excludeUserInput, const std::function<void()> &wait);
    void waitForFlag(bool excludeUserInput);

    // what the user does
    void clickARow();
    void pressARow();
    void releaseIt();
    void typeAKey();
    void clickInAMenu();
    void triggerAnAction();
    void clickARowByCode();

    // what the program does
    void block();
    void unBlock();
    void busyPhase();
    void blockForSomeTime();
    void forceCommand();
    void clearLock();
    void waitForAFlag();
    void waitForAFlagWithoutInput();
    void runExclusiveLoop();
    void waitForAnOperation();
    void waitUntilTimeOut();
    void runAnItem();
    void startAnItem();
    void stopAnItem();
    void scheduleACall();
    void discardACall();
    void replaceATicker();
    void destroyAnAction();
    void destroyARow();
    void destroyAReceiver();
    void replaceAPanel();
    void restoreAPanel();
    void beginAnew();

    void addPanel();
    void addProbe();
    void inASlot();

    static constexpr int deepestNesting = 3;

    std::mt19937 m_random;
    CommandLedger m_ledger;
    Watchdog m_watchdog;
    DelayedCalls m_delayedCalls{m_ledger, m_random};
    Work m_work{m_ledger, m_random};
    QList<std::function<bool()>> m_holds; // one for each wait that holds the input out: whether it still does
    int m_nesting = 0;
    bool m_isPumping = false; // in the one wait at a time
    int m_deletedReportsAtBeginning = 0;

    QMainWindow m_window;
    QLineEdit *m_line;
    QList<Panel *> m_panels; // owned by the window
    QPointer<QToolButton> m_pressed;
    std::unique_ptr<CommandReceiver> m_probeReceiver;
    std::unique_ptr<QAction> m_probe; // a plain command that is always there
};

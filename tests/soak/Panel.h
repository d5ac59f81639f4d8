// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soak/CommandLedger.h"

#include "interfaces/SerializableImpl.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

namespace ZYX_zglv6 {

class CActionManager;
class CSettingsPushButton;

} // namespace ZYX_zglv6

/*! The receiver of one command, with slots of both forms. */
class CommandReceiver : public QObject
{
    Q_OBJECT

public:
    CommandReceiver(int id, CommandLedger &ledger, std::function<void()> duringCall);

public Q_SLOTS:
    void run();
    void setOn(bool on);

private:
    const int m_id;
    CommandLedger &m_ledger;
    const std::function<void()> m_duringCall;
};

/*!
    A form of settings rows, with a menu of plain and checkable actions. All of them are registered with the gate, and
    the ledger is told of them. In a window, made and destroyed as a whole.
*/
class Panel : public QWidget, public SerializableUiImpl
{
    Q_OBJECT

public:
    Panel(CommandLedger &ledger, std::function<void()> duringCall, QWidget *parent);
    ~Panel() override;

    QList<ZYX_zglv6::CSettingsPushButton *> rows() const;
    QMenu *menu() const;

    /*! False if the gate remembers a command of this panel: such a panel, action or row must not go. */
    bool isDisposable() const;
    void destroyOneAction(quint32 which);
    void destroyOneRow(quint32 which);
    /*! Its command is carried out no more. The last row keeps its own. */
    void destroyOneReceiver(quint32 which);

    QByteArray serializeExclusive() const override;
    void deserializeExclusive(const QByteArray &bytes) override;
    QObject *getObject() override;
    const QObject *getObject() const override;

private:
    struct Entry
    {
        int id;
        QPointer<QObject> control; // an action or a row
        QPointer<CommandReceiver> receiver;
    };

    void addPlainAction();
    void addCheckableAction();
    void addRow();
    CommandReceiver *addEntry(QObject *control);
    Entry *entryOf(const QObject *control);

    CommandLedger &m_ledger;
    const std::function<void()> m_duringCall;
    QMenu *m_menu;
    QList<Entry> m_entries;
};

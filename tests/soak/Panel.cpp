// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Panel.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int entriesOfEachKind = 4;

int nextId()
{
    static int id = 0;
    return ++id;
}

CActionManager &gate()
{
    return Singleton<CActionManager>::instance();
}

} // namespace

CommandReceiver::CommandReceiver(int id, CommandLedger &ledger, std::function<void()> duringCall)
    : m_id(id)
    , m_ledger(ledger)
    , m_duringCall(std::move(duringCall))
{
}

void CommandReceiver::run()
{
    setOn(false);
}

void CommandReceiver::setOn(bool on)
{
    m_ledger.carriedOut({m_id, on});
    m_duringCall();
}

Panel::Panel(CommandLedger &ledger, std::function<void()> duringCall, QWidget *parent)
    : QWidget(parent)
    , m_ledger(ledger)
    , m_duringCall(std::move(duringCall))
    , m_menu(new QMenu(this))
{
    setProperty("GUID", u"panel"_qs);
    new QVBoxLayout(this);
    for (int index = 0; index < entriesOfEachKind; ++index) {
        addPlainAction();
        addCheckableAction();
        addRow();
    }
}

Panel::~Panel()
{
    for (const Entry &entry : std::as_const(m_entries)) {
        delete entry.receiver; // no child, because it goes alone as well
    }
}

CommandReceiver *Panel::addEntry(QObject *control)
{
    const int id = nextId();
    auto *receiver = new CommandReceiver(id, m_ledger, m_duringCall);
    m_entries.append({id, control, receiver});
    return receiver;
}

Panel::Entry *Panel::entryOf(const QObject *control)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [control](const Entry &entry) { return entry.control == control; });
    return found == m_entries.end() ? nullptr : &*found;
}

void Panel::addPlainAction()
{
    QAction *action = m_menu->addAction(u"plain"_qs);
    CommandReceiver *receiver = addEntry(action);
    const Command command{m_entries.last().id, false};
    // The first connection and the last: around what the gate does.
    connect(action, &QAction::triggered, this, [this, command] { m_ledger.triggered(command); });
    gate().addAction(action, receiver, "run");
    connect(action, &QAction::triggered, this, [this, command] { m_ledger.triggerDone(command, std::nullopt); });
}

void Panel::addCheckableAction()
{
    QAction *action = m_menu->addAction(u"checkable"_qs);
    action->setCheckable(true);
    CommandReceiver *receiver = addEntry(action);
    const int id = m_entries.last().id;
    connect(action, &QAction::triggered, this, [this, action, id](bool on) {
        entryOf(action)->receiver != nullptr ? m_ledger.triggered({id, on}) : m_ledger.triggeredInVain();
    });
    gate().addBooleanAction(action, receiver, "setOn");
    connect(action, &QAction::triggered, this, [this, action, id](bool on) {
        if (entryOf(action)->receiver != nullptr) {
            m_ledger.triggerDone({id, on}, action->isChecked());
        }
    });
}

void Panel::addRow()
{
    auto *row = new CSettingsPushButton(this);
    row->setProperty("GUID", u"row%1"_qs.arg(rows().size()));
    row->init(u"A row"_qs);
    row->setButtonCheckable(true);
    layout()->addWidget(row);
    CommandReceiver *receiver = addEntry(row);
    const int id = m_entries.last().id;
    connect(row, &CSettingsPushButton::clicked, this, [this, row, id](bool on) {
        entryOf(row)->receiver != nullptr ? m_ledger.triggered({id, on}) : m_ledger.triggeredInVain();
    });
    gate().addSettingsPushButtonAction(row, receiver, "setOn");
    connect(row, &CSettingsPushButton::clicked, this, [this, row, id](bool on) {
        if (entryOf(row)->receiver != nullptr) {
            m_ledger.triggerDone({id, on}, row->isButtonChecked());
        }
    });
}

QList<CSettingsPushButton *> Panel::rows() const
{
    return findChildren<CSettingsPushButton *>(QString(), Qt::FindDirectChildrenOnly);
}

QMenu *Panel::menu() const
{
    return m_menu;
}

bool Panel::isDisposable() const
{
    const std::optional<Command> remembered = m_ledger.remembered();
    return !remembered.has_value()
        || std::none_of(m_entries.begin(), m_entries.end(),
                        [&remembered](const Entry &entry) { return entry.id == remembered->id; });
}

void Panel::destroyOneAction(quint32 which)
{
    const QList<QAction *> actions = m_menu->actions();
    if (actions.size() < entriesOfEachKind || !isDisposable()) {
        return;
    }
    delete actions.at(which % actions.size());
    m_ledger.count(u"actions destroyed"_qs);
}

void Panel::destroyOneRow(quint32 which)
{
    const QList<CSettingsPushButton *> all = rows();
    if (all.size() < 2) {
        return;
    }
    CSettingsPushButton *row = all.at(which % (all.size() - 1));
    const Entry *entry = entryOf(row);
    if (m_ledger.remembered().has_value() && m_ledger.remembered()->id == entry->id) {
        m_ledger.forgetRemembered();
        m_ledger.count(u"remembered rows destroyed"_qs);
    }
    delete row;
    m_ledger.count(u"rows destroyed"_qs);
}

void Panel::destroyOneReceiver(quint32 which)
{
    const QList<CSettingsPushButton *> all = rows();
    if (all.size() < 2 || !isDisposable()) {
        return;
    }
    delete entryOf(all.at(which % (all.size() - 1)))->receiver;
    m_ledger.count(u"receivers destroyed"_qs);
}

QByteArray Panel::serializeExclusive() const
{
    return {};
}

void Panel::deserializeExclusive(const QByteArray & /*data*/)
{
}

QObject *Panel::getObject()
{
    return this;
}

const QObject *Panel::getObject() const
{
    return this;
}

// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// What a command of the user costs on its way through the gate, beside the direct connection of an action and a slot.

#include "utilsDll/actions/ActionManager.h"

#include <QtGui/QAction>
#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

#include <deque>

namespace {

using ZYX_zglv6::CActionManager;

class Receiver : public QObject
{
    Q_OBJECT

public:
    int calls = 0;

public Q_SLOTS:
    void save()
    {
        ++calls;
    }
};

/*! Triggers one action over and over, and checks that each time the slot was called. */
void trigger(benchmark::State &state, QAction &action, const Receiver &receiver)
{
    const int before = receiver.calls;
    for ([[maybe_unused]] auto round : state) {
        action.trigger();
    }
    if (receiver.calls - before != state.iterations()) {
        state.SkipWithError("A command got lost.");
    }
}

void command_direct(benchmark::State &state)
{
    Receiver receiver;
    QAction action;
    QObject::connect(&action, &QAction::triggered, &receiver, &Receiver::save);
    trigger(state, action, receiver);
}
BENCHMARK(command_direct);

/*! A connection that calls the slot by its name: what any gate costs that knows names only. */
void command_byName(benchmark::State &state)
{
    Receiver receiver;
    QAction action;
    QObject::connect(&action, &QAction::triggered, &receiver,
                     [&receiver] { QMetaObject::invokeMethod(&receiver, "save"); });
    trigger(state, action, receiver);
}
BENCHMARK(command_byName);

/*! With as many registered commands as the argument says. */
void command_throughTheGate(benchmark::State &state)
{
    CActionManager gate;
    Receiver receiver;
    std::deque<QAction> actions(static_cast<std::size_t>(state.range(0)));
    for (QAction &action : actions) {
        gate.addAction(&action, &receiver, "save");
    }
    trigger(state, actions[actions.size() / 2], receiver);
}
BENCHMARK(command_throughTheGate)->Arg(1)->Arg(100)->Arg(1000);

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#include "bench_ActionManager.moc"

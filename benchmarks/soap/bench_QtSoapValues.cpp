// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// What one look-up in a struct and one insertion into an array cost, by the number of members or items.

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <benchmark/benchmark.h>

using namespace ZYX_zglv6;

namespace {

QString memberName(qint64 number)
{
    return u"member%1"_qs.arg(number);
}

/*! The last member, which is the longest way. */
void structLookUp(benchmark::State &state)
{
    QtSoapStruct members;
    for (qint64 i = 0; i < state.range(0); ++i) {
        members.insert(new QtSoapSimpleType(QtSoapQName(memberName(i)), int(i)));
    }
    const QtSoapQName last(memberName(state.range(0) - 1));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(members.at(last).toInt());
    }
    state.SetComplexityN(state.range(0));
}

/*! Fills an array and destroys it; the time is of all items. */
void arrayInsertion(benchmark::State &state)
{
    const QtSoapQName name(u"item"_qs);
    for ([[maybe_unused]] auto round : state) {
        QtSoapArray items(QtSoapQName(u"items"_qs), QtSoapType::Int);
        for (qint64 i = 0; i < state.range(0); ++i) {
            items.insert(int(i), new QtSoapSimpleType(name, int(i)));
        }
        benchmark::DoNotOptimize(items.count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(structLookUp)->RangeMultiplier(10)->Range(10, 100'000)->Complexity(benchmark::oN);
BENCHMARK(arrayInsertion)->RangeMultiplier(10)->Range(10, 100'000)->Complexity(benchmark::oN);

BENCHMARK_MAIN();

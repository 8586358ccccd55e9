// Cut lists at the scale of automatic editing: a clip kept whole, then n cuts of half a second, one
// a second, added one at a time; and a million random lookups across the cut clip, source to result
// and back. Beside each, where it finishes in reasonable time, the full rebuild of
// tests/CutListReference.h, which the controller must match interval for interval.
//   build/release/bench/CutList_bench
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "Proc/Settings/SettingsFilterCutController.h"
#include "tests/CutListReference.h"

namespace {

using Zorvan::Proc::avTime;
using Controller = Zorvan::Proc::SettingsFilterCutController;
using Reference = ZorvanTest::ReferenceCutList;

constexpr avTime SECOND = 1'000'000;
constexpr int LOOKUPS = 1'000'000;

void Add(Controller& list, avTime begin, avTime end, bool deleted)
{
    list.AddInterval(begin, end, 0, deleted);
}

void Add(Reference& list, avTime begin, avTime end, bool deleted)
{
    list.AddInterval(begin, end, deleted);
}

std::size_t Size(const Controller& list)
{
    return list.GetIntervals().size();
}

std::size_t Size(const Reference& list)
{
    return list.intervals.size();
}

avTime ToResult(Controller& list, avTime time)
{
    return list.Source2Result(time);
}

avTime ToResult(Reference& list, avTime time)
{
    return *list.Source2Result(time);
}

template <class List>
List WithCuts(avTime cuts)
{
    List list;
    Add(list, 0, Controller::OPEN_END, false);
    for (avTime second = 0; second < cuts; ++second) {
        Add(list, second * SECOND + SECOND / 2, (second + 1) * SECOND, true);
    }
    return list;
}

// Uniform times below the bound, the same for every run.
std::vector<avTime> RandomTimes(avTime bound)
{
    std::mt19937_64 random(42);
    std::vector<avTime> times(LOOKUPS);
    for (avTime& time : times) {
        time = std::uniform_int_distribution<avTime>(0, bound - 1)(random);
    }
    return times;
}

template <class List>
void AddCuts(benchmark::State& state)
{
    for (auto _ : state) {
        List list = WithCuts<List>(state.range(0));
        benchmark::DoNotOptimize(Size(list));
    }
}

template <class List>
void Source2Result(benchmark::State& state)
{
    List list = WithCuts<List>(state.range(0));
    const std::vector<avTime> times = RandomTimes(state.range(0) * SECOND);
    for (auto _ : state) {
        for (const avTime time : times) {
            benchmark::DoNotOptimize(ToResult(list, time));
        }
    }
}

template <class List>
void Result2Source(benchmark::State& state)
{
    const List list = WithCuts<List>(state.range(0));
    const std::vector<avTime> times = RandomTimes(state.range(0) * SECOND / 2);
    for (auto _ : state) {
        for (const avTime time : times) {
            benchmark::DoNotOptimize(list.Result2Source(time));
        }
    }
}

} // namespace

BENCHMARK_TEMPLATE(AddCuts, Reference)->Arg(1'000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(AddCuts, Controller)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Source2Result, Reference)->Arg(1'000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Source2Result, Controller)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Result2Source, Reference)->Arg(1'000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Result2Source, Controller)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();

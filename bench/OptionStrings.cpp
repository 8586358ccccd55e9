// Option strings as the engine reads them when it opens a project: GetOptionsMap against the
// floor of building its map, whole records on the library's reading and on the plain
// std::regex reading (each call compiling its expression), long strings of 1 and 16 MiB, and
// FFmpeg's av_dict_parse_string when libavutil is there. One run prints every figure and,
// at the end, the ratios:
//   cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
//   cmake --build build/release --target OptionStrings && build/release/bench/OptionStrings
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Proc/Settings/OptionMatcher.h"
#include "Proc/Settings/SettingsAudioCompressor.h"
#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "Proc/Settings/SettingsEffectColorCurves.h"
#include "Proc/Settings/SettingsResizer.h"
#include "tests/OptionsReference.h"

#ifdef ZORVAN_BENCH_HAVE_AVUTIL
extern "C" {
#include <libavutil/dict.h>
}
#endif

namespace {

using Zorvan::Proc::Settings;
namespace OptionMatcher = Zorvan::Proc::OptionMatcher;
namespace Reference = ZorvanTest::Reference;

const std::string kDynamics =
    "threshold=-20:ratio=4:attack=20:release=250:makeup=2:knee=2.8:detection=1:link=0:mix=1:level_in=1";
const std::vector<std::string> kDynamicsKeys = {"threshold", "ratio",     "attack", "release", "makeup",
                                                "knee",      "detection", "link",   "mix",     "level_in"};

// The compressor's own range takes a threshold from 0 to 1.
const std::string kCompressor =
    "threshold=0.125:ratio=4:attack=20:release=250:makeup=2:knee=2.8:detection=1:link=0:mix=1:level_in=1";
const std::string kResizer = "1920x1080:size_mode=Custom:custom_mode=LetterBox";
const std::string kCurves =
    "rgb-curve=0,0.5,1:red-curve=1,0:red-domain=0.25,0.75:green-curve=\"0,0.25\":green-domain=\"0.75,0.25\"";
const std::string kBlur = "scale=2.5:fast=1";

const OptionMatcher::Replacement kPlainRegex{&Reference::GetOptionsMap, &Reference::OptionsRegexSearch,
                                             &Reference::OptionRegexSearch};

void GetOptionsMap(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(Settings::GetOptionsMap(kDynamics, kDynamicsKeys));
    }
}

// The least any reading can do: the ten pairs already split, only the map built; `reserved`
// also takes its buckets at once, as GetOptionsMap does.
void Floor(benchmark::State& state, bool reserved)
{
    std::vector<std::pair<std::string_view, std::string_view>> pairs;
    for (const auto& [key, value] : Settings::GetOptionsMap(kDynamics, kDynamicsKeys)) {
        const std::size_t at = kDynamics.find(key + "=" + value);
        pairs.emplace_back(std::string_view(kDynamics).substr(at, key.size()),
                           std::string_view(kDynamics).substr(at + key.size() + 1, value.size()));
    }
    for (auto _ : state) {
        Settings::OptionsMap map;
        if (reserved) {
            map.reserve(pairs.size());
        }
        for (const auto& [key, value] : pairs) {
            map.emplace(std::piecewise_construct, std::forward_as_tuple(key), std::forward_as_tuple(value));
        }
        benchmark::DoNotOptimize(map);
    }
}

void GetOptionsMapPlainRegex(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(Reference::GetOptionsMap(kDynamics, kDynamicsKeys));
    }
}

#ifdef ZORVAN_BENCH_HAVE_AVUTIL
void AvDictParseString(benchmark::State& state)
{
    for (auto _ : state) {
        AVDictionary* dictionary = nullptr;
        benchmark::DoNotOptimize(av_dict_parse_string(&dictionary, kDynamics.c_str(), "=", ":", 0));
        av_dict_free(&dictionary);
    }
}
#endif

// Deserialize of one record on the library's reading, or on the plain one when `plain`.
template <class Record>
void Deserialize(benchmark::State& state, const std::string& options, bool plain)
{
    OptionMatcher::Replace(plain ? &kPlainRegex : nullptr);
    Record record;
    for (auto _ : state) {
        record.Deserialize(options);
        benchmark::DoNotOptimize(record);
    }
    OptionMatcher::Replace(nullptr);
}

struct RecordCase {
    const char* name;
    void (*deserialize)(benchmark::State&, const std::string&, bool);
    const std::string& options;
};

const RecordCase kRecords[] = {
    {"Compressor", &Deserialize<Zorvan::Proc::SettingsAudioCompressor>, kCompressor},
    {"Resizer", &Deserialize<Zorvan::Proc::SettingsResizer>, kResizer},
    {"ColorCurves", &Deserialize<Zorvan::Proc::SettingsEffectColorCurves>, kCurves},
    {"BlurGaussian", &Deserialize<Zorvan::Proc::SettingsEffectBlurGaussian>, kBlur},
};

std::string Repeat(const std::string& piece, std::size_t size)
{
    std::string text;
    while (text.size() < size) {
        text += piece;
    }
    return text;
}

// Long strings, 1 and 16 MiB: the time per byte stays the same.
void LongQuotedValue(benchmark::State& state)
{
    const std::string options = "a=\"" + std::string(static_cast<std::size_t>(state.range(0)), 'q') + "\"";
    for (auto _ : state) {
        benchmark::DoNotOptimize(Settings::OptionRegexSearch(options, "a", ""));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * options.size()));
}

void LongManyKeys(benchmark::State& state)
{
    const std::string options = Repeat("threshold=1:x=2::", static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Settings::GetOptionsMap(options, kDynamicsKeys));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * options.size()));
}

double Fastest(const std::vector<double>& times)
{
    return *std::min_element(times.begin(), times.end());
}

// Every benchmark also reports the fastest of its repetitions: other work on the machine only
// ever adds time, so the fastest CPU time is the steadiest figure to take ratios of.
benchmark::internal::Benchmark* Add(benchmark::internal::Benchmark* benchmark)
{
    return benchmark->ComputeStatistics("min", &Fastest);
}

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const double nanoseconds = run.GetAdjustedCPUTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
            if (run.error_occurred) {
                continue;
            }
            if (run.run_type == Run::RT_Iteration) {
                std::vector<double>& times = samples_[run.benchmark_name()];
                times.push_back(nanoseconds);
            } else if (run.aggregate_name == "min") {
                const std::string name = run.benchmark_name();
                samples_[name.substr(0, name.size() - std::string_view("_min").size())] = {nanoseconds};
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void PrintRatio(const std::string& what, const std::string& numerator, const std::string& denominator) const
    {
        const auto top = samples_.find(numerator);
        const auto bottom = samples_.find(denominator);
        if (top != samples_.end() && bottom != samples_.end()) {
            std::printf("%-58s %8.2f\n", what.c_str(), Fastest(top->second) / Fastest(bottom->second));
        }
    }

private:
    std::map<std::string, std::vector<double>> samples_;
};

} // namespace

int main(int argc, char** argv)
{
    Add(benchmark::RegisterBenchmark("GetOptionsMap", &GetOptionsMap));
    Add(benchmark::RegisterBenchmark("Floor", &Floor, false));
    Add(benchmark::RegisterBenchmark("FloorReserved", &Floor, true));
    Add(benchmark::RegisterBenchmark("GetOptionsMapPlainRegex", &GetOptionsMapPlainRegex));
#ifdef ZORVAN_BENCH_HAVE_AVUTIL
    Add(benchmark::RegisterBenchmark("AvDictParseString", &AvDictParseString));
#endif
    for (const RecordCase& record : kRecords) {
        const std::string name = std::string("Deserialize/") + record.name;
        Add(benchmark::RegisterBenchmark(name.c_str(), record.deserialize, record.options, false));
        Add(benchmark::RegisterBenchmark((name + "/PlainRegex").c_str(), record.deserialize, record.options, true));
    }
    for (auto* function : {&LongQuotedValue, &LongManyKeys}) {
        Add(benchmark::RegisterBenchmark(function == &LongQuotedValue ? "LongQuotedValue" : "LongManyKeys", function))
            ->Arg(1 << 20)
            ->Arg(16 << 20)
            ->Unit(benchmark::kMillisecond);
    }
    // Nine interleaved repetitions of each, only their statistics shown, unless the
    // arguments say otherwise.
    std::string defaults[] = {"--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
                              "--benchmark_display_aggregates_only=true", "--benchmark_min_time=0.2"};
    std::vector<char*> arguments{argv[0]};
    for (std::string& argument : defaults) {
        arguments.push_back(argument.data());
    }
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\nRatios of the fastest CPU times (times as long)\n");
    reporter.PrintRatio("GetOptionsMap / floor", "GetOptionsMap", "Floor");
    reporter.PrintRatio("GetOptionsMap / floor with its buckets reserved", "GetOptionsMap", "FloorReserved");
    reporter.PrintRatio("av_dict_parse_string / GetOptionsMap", "AvDictParseString", "GetOptionsMap");
    reporter.PrintRatio("GetOptionsMap: plain std::regex / library", "GetOptionsMapPlainRegex", "GetOptionsMap");
    for (const RecordCase& record : kRecords) {
        const std::string name = std::string("Deserialize/") + record.name;
        reporter.PrintRatio("Deserialize " + std::string(record.name) + ": plain std::regex / library",
                            name + "/PlainRegex", name);
    }
    reporter.PrintRatio("LongQuotedValue: 16 MiB / 1 MiB", "LongQuotedValue/16777216", "LongQuotedValue/1048576");
    reporter.PrintRatio("LongManyKeys: 16 MiB / 1 MiB", "LongManyKeys/16777216", "LongManyKeys/1048576");
    benchmark::Shutdown();
    return 0;
}

// SettingsFilterCutController. Every expected list is worked out by hand; times are microseconds,
// small counts unless a case needs the engine's real scale.
#include <gtest/gtest.h>

#include "Proc/Settings/SettingsFilterCutController.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormBDescription;
using Interval = SettingsFilterCutController::Interval;
using Intervals = std::deque<Interval>;

namespace Zorvan::Proc {
void PrintTo(const SettingsFilterCutController::Interval& interval, std::ostream* os)
{
    *os << "{" << interval.begin << ", " << interval.end << ", " << interval.deletedBefore << ", "
        << (interval.deleted ? "D" : "K") << "}";
}
} // namespace Zorvan::Proc

namespace {

constexpr avTime O = SettingsFilterCutController::OPEN_END;
constexpr avTime NO = SettingsFilterCutController::NO_TIME;
constexpr avTime MIN = std::numeric_limits<avTime>::min();
constexpr avTime MAX = std::numeric_limits<avTime>::max();
constexpr bool D = true;  // deleted
constexpr bool K = false; // kept
const std::string NOT_FOUND = "Can't find interval in SettingsFilterCutController";

// Reaches raw lists, which the public operations cannot build, and the remembered index.
class CutControllerAccess : public SettingsFilterCutController {
public:
    void SetRawIntervals(Intervals list) { intervals = std::move(list); }
    int RememberedIndex() const { return index; }
};

using Adds = std::vector<std::tuple<avTime, avTime, bool>>; // begin, end, deleted

// The default state or a raw list, with intervals added; 777 as the time before each must be lost.
CutControllerAccess Build(const Adds& adds, const std::optional<Intervals>& start = {})
{
    CutControllerAccess cut;
    cut.SetRawIntervals(start.value_or(cut.GetIntervals()));
    for (const auto& [begin, end, deleted] : adds) {
        cut.AddInterval(begin, end, 777, deleted);
    }
    return cut;
}

const Adds ONE_KEPT{{10, 20, K}};
const Adds THREE_KEPT{{10, 20, K}, {30, 40, K}, {50, 60, K}};
const Intervals THREE{{0, 10, 0, D},   {10, 20, 10, K}, {20, 30, 10, D}, {30, 40, 20, K},
                      {40, 50, 20, D}, {50, 60, 30, K}, {60, O, 30, D}};

} // namespace

TEST(CutController, AddIntervalRebuildsTheList)
{
    // What, a raw list instead of the default state, the intervals added, the list, enabled, the overall
    // duration of a source 100 long.
    const std::tuple<const char*, std::optional<Intervals>, Adds, Intervals, bool, avTime> cases[] = {
        // clang-format off
        {"kept on the default state", {}, ONE_KEPT, {{0, 10, 0, D}, {10, 20, 10, K}, {20, O, 10, D}}, true, 10},
        {"kept over everything", {}, {{0, O, K}}, {{0, O, 0, K}}, true, 100},
        {"deleted on the default state", {}, {{20, 30, D}}, {{0, O, 0, D}}, false, 100},
        {"deleted inside kept", {}, {{10, 50, K}, {20, 30, D}},
            {{0, 10, 0, D}, {10, 20, 10, K}, {20, 30, 10, D}, {30, 50, 20, K}, {50, O, 20, D}}, true, 30},
        {"kept inside deleted inside kept", {}, {{0, O, K}, {10, 50, D}, {20, 30, K}},
            {{0, 10, 0, K}, {10, 20, 0, D}, {20, 30, 10, K}, {30, 50, 10, D}, {50, O, 30, K}}, true, 70},
        {"deleted partly over kept", {}, {{10, 30, K}, {20, 40, D}},
            {{0, 10, 0, D}, {10, 20, 10, K}, {20, O, 10, D}}, true, 10},
        {"overlapping deletions merge", {}, {{0, O, K}, {10, 30, D}, {20, 40, D}},
            {{0, 10, 0, K}, {10, 40, 0, D}, {40, O, 30, K}}, true, 70},
        {"adjacent kept stretches merge", {}, {{10, 20, K}, {20, 30, K}},
            {{0, 10, 0, D}, {10, 30, 10, K}, {30, O, 10, D}}, true, 20},
        {"kept over a deletion undoes it", {}, {{0, O, K}, {10, 20, D}, {10, 20, K}}, {{0, O, 0, K}}, true, 100},
        {"three kept stretches", {}, THREE_KEPT, THREE, true, 30},
        {"a deletion across several", {}, {{10, 20, K}, {30, 40, K}, {50, 60, K}, {15, 55, D}},
            {{0, 10, 0, D}, {10, 15, 10, K}, {15, 55, 10, D}, {55, 60, 50, K}, {60, O, 50, D}}, true, 10},
        {"kept to the open end", {}, {{20, O, K}}, {{0, 20, 0, D}, {20, O, 20, K}}, true, 80},
        {"zero length on the default state", {}, {{30, 30, K}}, {{0, O, 0, D}}, false, 100},
        // The midpoint of -1 and 0 truncates to 0, outside [-1, 0): the default interval holds it.
        {"midpoint toward zero", {}, {{-1, 0, K}}, {{-1, O, 0, D}}, false, 100},
        {"midpoint -1", {}, {{-2, 0, K}}, {{-2, 0, 0, K}, {0, O, 0, D}}, true, 2},
        // MIN + MAX is -1, its half 0; MAX - MIN wraps to -1.
        {"extreme times", {}, {{MIN, MAX, K}}, {{MIN, MAX, 0, K}}, true, -1},
        {"what no interval covers is kept", Intervals{{0, 10, 0, D}, {20, 30, 0, D}}, {},
            {{0, 10, 0, D}, {10, 20, 10, K}, {20, 30, 10, D}}, true, 10},
        {"kept added to an empty list", Intervals{}, ONE_KEPT, {{10, 20, 0, K}}, true, 10},
        {"a lone zero-length interval leaves nothing", Intervals{{5, 5, 0, K}}, {}, {}, false, 100},
        // clang-format on
    };
    for (const auto& [what, start, adds, expected, enabled, overall] : cases) {
        SCOPED_TRACE(what);
        CutControllerAccess cut = Build(adds, start);
        if (!adds.empty()) {
            EXPECT_EQ(cut.GetIntervals(), expected);
        }
        cut.UpdateOptimizedList(); // a rebuilt list rebuilds to itself
        EXPECT_EQ(cut.GetIntervals(), expected);
        EXPECT_EQ(cut.IsEnabled(), enabled);
        EXPECT_EQ(cut.GetOverallDuration(100), overall);
    }
}

TEST(CutController, MapsBetweenSourceAndResultTimeAndLooksUpTheIntervalThatHoldsATime)
{
    using Pairs = std::vector<std::pair<avTime, avTime>>;
    const std::tuple<const char*, std::optional<Intervals>, Adds, Pairs, Pairs> cases[] = {
        // clang-format off
        // 0 minus the no-time value wraps round to the no-time value.
        {"default state", {}, {}, {{0, NO}, {1'000'000, NO}}, {{0, NO}, {500'000, NO}}},
        {"rebuilt default state", {}, {{30, 30, K}}, {{1'000'000, 0}}, {{0, NO}}},
        {"one kept second", {}, {{1'000'000, 2'000'000, K}},
            {{1'500'000, 500'000}, {3'000'000, 1'000'000}, {500'000, 0}, {-3, 0}},
            {{500'000, 1'500'000}, {0, 1'000'000}, {1'000'000, NO}}},
        {"three kept", {}, THREE_KEPT, {{0, 0}, {10, 0}, {25, 10}, {30, 10}, {55, 25}, {80, 30}, {O - 1, 30}},
            {{0, 10}, {10, 30}, {25, 55}, {29, 59}, {30, NO}, {-1, NO}}},
        // One kept interval: the identity, unchecked; a negative time is 0 for the lookup alone.
        {"everything kept", {}, {{0, O, K}}, {{10, 10}, {-5, -5}}, {{0, 0}, {-7, -7}, {O + 5, O + 5}}},
        {"overlapping deletions", {}, {{0, O, K}, {10, 30, D}, {20, 40, D}}, {{50, 20}, {20, 10}},
            {{20, 50}, {9, 9}, {10, 40}}},
        {"kept to the open end", {}, {{20, O, K}}, {{1'000'000'000'000, 999'999'999'980}}, {{10, 30}}},
        {"extremes", {}, {{MIN, MAX, K}}, {{5, 5}}, {{MAX, MAX}}}, {"below zero", {}, {{-10, 0, K}}, {{-5, 0}}, {}},
        {"lone kept", Intervals{}, ONE_KEPT, {{15, 15}}, {{5, 5}}}, {"empty list", Intervals{}, {}, {}, {{0, NO}}},
        // clang-format on
    };
    for (const auto& [what, start, adds, source2Result, result2Source] : cases) {
        SCOPED_TRACE(what);
        const CutControllerAccess cut = Build(adds, start);
        for (const auto& [source, result] : source2Result) {
            EXPECT_EQ(cut.Source2Result(source), result) << source;
        }
        for (const auto& [result, source] : result2Source) {
            EXPECT_EQ(cut.Result2Source(result), source) << result;
        }
    }

    // The interval that holds a time: a raw list or the default state, the intervals added, the time, the
    // index found (-1: none).
    const std::tuple<std::optional<Intervals>, Adds, avTime, int> lookups[] = {
        // clang-format off
        {{}, {}, O - 1, 0},    {{}, {}, O, -1},            {{}, ONE_KEPT, 9, 0},     {{}, ONE_KEPT, 10, 1},
        {{}, ONE_KEPT, 20, 2}, {{}, {{-10, 0, K}}, -5, 1}, {Intervals{}, {}, 0, -1}, {Intervals{}, ONE_KEPT, 20, -1},
        // clang-format on
    };
    for (const auto& [start, adds, time, index] : lookups) {
        SCOPED_TRACE(time);
        const CutControllerAccess cut = Build(adds, start);
        if (index >= 0) {
            EXPECT_EQ(cut.GetIntervalIndex(time), index);
            continue;
        }
        const auto fails = [&](auto lookup) {
            return FormBDescription<std::logic_error>([&] { (void)(cut.*lookup)(time); }) == NOT_FOUND;
        };
        using C = SettingsFilterCutController;
        EXPECT_TRUE(fails(&C::GetIntervalIndex) && fails(&C::Source2Result) && fails(&C::IsPointDeleted));
        EXPECT_TRUE(fails(&C::GetIntervalLength) && fails(&C::GetIntervalBeginTime) && fails(&C::GetIntervalEndTime));
    }
    // Each accessor reads its own field of the interval found; the length wraps round.
    const CutControllerAccess one = Build(ONE_KEPT);
    const auto fields = [&](avTime time) {
        return std::tuple(one.IsPointDeleted(time), one.GetIntervalBeginTime(time), one.GetIntervalEndTime(time),
                          one.GetIntervalLength(time));
    };
    EXPECT_EQ(fields(19), std::tuple(K, 10, 20, 10));
    EXPECT_EQ(fields(20), std::tuple(D, 20, O, O - 20));
    EXPECT_EQ(Build({{MIN, MAX, K}}).GetIntervalLength(0), -1);
    EXPECT_EQ(Build(ONE_KEPT).GetOptInterval(2), (Interval{20, O, 10, D}));
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { (void)Build(ONE_KEPT).GetOptInterval(3); }),
              "Incorrect interval index");
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { (void)Build({}, Intervals{}).GetOptInterval(0); }),
              "No intervals created");
}

TEST(CutController, CutToDurationDeletesFromTheEndOfTheKeptMaterial)
{
    // What, a raw list, the intervals added, the target and source durations, the list, the overall duration.
    const std::tuple<const char*, std::optional<Intervals>, Adds, avTime, avTime, Intervals, avTime> cases[] = {
        // clang-format off
        {"the overall length", {}, THREE_KEPT, 30, 100, THREE, 30},
        {"inside the last kept stretch", {}, THREE_KEPT, 25, 100, {{0, 10, 0, D}, {10, 20, 10, K}, {20, 30, 10, D},
            {30, 40, 20, K}, {40, 50, 20, D}, {50, 55, 30, K}, {55, O, 30, D}}, 25},
        {"a stretch as long as the excess goes whole", {}, THREE_KEPT, 20, 100,
            {{0, 10, 0, D}, {10, 20, 10, K}, {20, 30, 10, D}, {30, 40, 20, K}, {40, O, 20, D}}, 20},
        {"back over several", {}, THREE_KEPT, 5, 100, {{0, 10, 0, D}, {10, 15, 10, K}, {15, O, 10, D}}, 5},
        {"the stored open end stays", {}, {{20, O, K}}, 10, 50, {{0, 20, 0, D}, {20, 30, 20, K}, {30, O, 20, D}}, 10},
        // The open-ended stretch counts 10 of a source 50 long, leaving 5 to cut.
        {"an open end counts to the source", {}, {{10, 20, K}, {40, O, K}}, 5, 50,
            {{0, 10, 0, D}, {10, 15, 10, K}, {15, O, 10, D}}, 5},
        // With nothing kept the walk stops; a lone deleted interval counts as no cut list.
        {"to zero", {}, ONE_KEPT, 0, 50, {{0, O, 0, D}}, 50},
        {"nothing kept", {}, {}, 10, 50, {{0, O, 0, D}}, 50}, {"an empty list", Intervals{}, {}, 10, 50, {}, 50},
        // clang-format on
    };
    for (const auto& [what, start, adds, target, source, expected, overall] : cases) {
        SCOPED_TRACE(what);
        CutControllerAccess cut = Build(adds, start);
        cut.CutToDuration(target, source);
        EXPECT_EQ(cut.GetIntervals(), expected);
        EXPECT_EQ(cut.GetOverallDuration(source), overall);
    }
}

TEST(CutController, ComparisonLooksAtEveryIntervalFieldAndIgnoresTheIndexFoundLast)
{
    const Intervals base{{0, 10, 5, D}, {10, 20, 15, K}};
    for (const Intervals& other : {Intervals{{0, 10, 5, D}, {11, 20, 15, K}}, Intervals{{0, 10, 5, D}, {10, 21, 15, K}},
                                   Intervals{{0, 10, 5, D}, {10, 20, 16, K}}, Intervals{{0, 10, 5, D}, {10, 20, 15, D}},
                                   Intervals{{0, 10, 5, D}}}) {
        EXPECT_FALSE(Build({}, base) == Build({}, other) || Build({}, base).IsEqualTo(Build({}, other)));
    }
    // A lookup remembers the interval it found and a failed one keeps it; every rebuild forgets it.
    // Comparison ignores it; a clone keeps the list.
    CutControllerAccess cut = Build(THREE_KEPT);
    EXPECT_EQ(cut.Source2Result(35), 15);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { (void)cut.GetIntervalIndex(O); }), NOT_FOUND);
    EXPECT_EQ(cut.RememberedIndex(), 3);
    EXPECT_TRUE(cut == Build(THREE_KEPT) && cut.Clone()->IsEqualTo(cut));
    cut.CutToDuration(30, 100); // changes nothing but the index
    EXPECT_EQ(cut.RememberedIndex(), -1);
    cut.Reset();
    EXPECT_TRUE(cut == SettingsFilterCutController());
}

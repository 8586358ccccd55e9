// Part 2.2: the cut controller. Every expected value is worked out by hand from the
// Part's Algorithms text (times in microseconds; OPEN is the open end, thirty days).
#include <gtest/gtest.h>

#include <deque>
#include <limits>
#include <ostream>
#include <stdexcept>
#include <typeinfo>
#include <utility>

#include "Proc/Settings/SettingsFilterCutController.h"
#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;
using ZorvanTest::FormADescription;
using ZorvanTest::FormBDescription;
using Interval = SettingsFilterCutController::Interval;
using Intervals = std::deque<Interval>;

namespace Zorvan::Proc {
// Readable failure output for intervals.
void PrintTo(const SettingsFilterCutController::Interval& interval, std::ostream* os)
{
    *os << "{" << interval.begin << ", " << interval.end << ", " << interval.deletedBefore << ", "
        << (interval.deleted ? "deleted" : "kept") << "}";
}
} // namespace Zorvan::Proc

namespace {

constexpr avTime OPEN = SettingsFilterCutController::OPEN_END;
constexpr avTime NO_TIME = SettingsFilterCutController::NO_TIME;
constexpr avTime MIN = std::numeric_limits<avTime>::min();
constexpr avTime MAX = std::numeric_limits<avTime>::max();
const std::string NOT_FOUND = "Can't find interval in SettingsFilterCutController";

// Reaches the protected fields: lists the public operations cannot build (an empty one,
// overlapping ones) and the remembered index.
class CutControllerAccess : public SettingsFilterCutController {
public:
    void SetRawIntervals(Intervals list) { intervals = std::move(list); }
    int RememberedIndex() const { return index; }
};

// The default state with one kept stretch 1 s to 2 s (the example of Part 2.2).
template <class C = SettingsFilterCutController>
C OneKept()
{
    C cut;
    cut.AddInterval(1'000'000, 2'000'000, 0, false);
    return cut;
}

// The default state with kept stretches 1-2 s, 3-4 s and 5-6 s: three seconds of result.
template <class C = SettingsFilterCutController>
C ThreeKept()
{
    C cut;
    cut.AddInterval(1'000'000, 2'000'000, 0, false);
    cut.AddInterval(3'000'000, 4'000'000, 0, false);
    cut.AddInterval(5'000'000, 6'000'000, 0, false);
    return cut;
}

const Intervals THREE_KEPT{
    {0, 1'000'000, 0, true},
    {1'000'000, 2'000'000, 1'000'000, false},
    {2'000'000, 3'000'000, 1'000'000, true},
    {3'000'000, 4'000'000, 2'000'000, false},
    {4'000'000, 5'000'000, 2'000'000, true},
    {5'000'000, 6'000'000, 3'000'000, false},
    {6'000'000, OPEN, 3'000'000, true},
};

} // namespace

// --- Data model and default state --------------------------------------------------------

TEST(CutController, ConstantsAreThirtyDaysAndTheSmallestTime)
{
    EXPECT_EQ(SettingsFilterCutController::OPEN_END, 2592000000000);
    EXPECT_EQ(SettingsFilterCutController::NO_TIME, -9223372036854775807LL - 1);
    EXPECT_EQ(SettingsFilterCutController().GetClassId(), "$$FILTER_CUT_CONTROLLER$$");
    EXPECT_EQ(&SettingsFilterCutController().GetClassId(), &SettingsFilterCutController::CLASS_ID);
}

TEST(CutController, IntervalIsAnAggregateInDeclaredOrderComparedOnAllFourFields)
{
    const Interval interval{1, 2, 3, true};
    EXPECT_EQ(interval.begin, 1);
    EXPECT_EQ(interval.end, 2);
    EXPECT_EQ(interval.deletedBefore, 3);
    EXPECT_TRUE(interval.deleted);
    EXPECT_EQ(interval, (Interval{1, 2, 3, true}));
    EXPECT_NE(interval, (Interval{0, 2, 3, true}));
    EXPECT_NE(interval, (Interval{1, 0, 3, true}));
    EXPECT_NE(interval, (Interval{1, 2, 0, true}));
    EXPECT_NE(interval, (Interval{1, 2, 3, false}));
    const SettingsFilterCutController::PointInfo point{};
    EXPECT_EQ(point.time, 0);
    EXPECT_FALSE(point.flag);
}

TEST(CutController, DefaultStateIsOneDeletedIntervalWithNoTimeBefore)
{
    const CutControllerAccess cut;
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, NO_TIME, true}}));
    EXPECT_EQ(cut.GetIntervalCount(), 1U);
    EXPECT_EQ(cut.GetOptInterval(0), (Interval{0, OPEN, NO_TIME, true}));
    EXPECT_EQ(cut.RememberedIndex(), -1);
}

TEST(CutController, DefaultStateIsDisabledKeepsTheSourceDurationAndMapsNoResultTime)
{
    const SettingsFilterCutController cut;
    EXPECT_FALSE(cut.IsEnabled());
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 5'000'000);
    EXPECT_EQ(cut.GetOverallDuration(0), 0);
    EXPECT_EQ(cut.Result2Source(0), NO_TIME);
    EXPECT_EQ(cut.Result2Source(500'000), NO_TIME);
    EXPECT_EQ(cut.GetIntervalIndex(0), 0);
    EXPECT_EQ(cut.GetIntervalIndex(1'000'000), 0);
    EXPECT_EQ(cut.GetIntervalIndex(OPEN - 1), 0);
    EXPECT_EQ(cut.GetIntervalIndex(-5), 0);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(OPEN); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(OPEN + 1); }), NOT_FOUND);
}

TEST(CutController, DefaultStateSource2ResultWrapsTheNoTimeDeletedBefore)
{
    // The deleted interval maps to its begin 0; 0 minus the no-time value wraps around
    // (unsigned arithmetic, CONVENTIONS.md) to the no-time value itself.
    const SettingsFilterCutController cut;
    EXPECT_EQ(cut.Source2Result(1'000'000), NO_TIME);
    EXPECT_EQ(cut.Source2Result(0), NO_TIME);
}

TEST(CutController, RebuildingTheDefaultStateSetsDeletedBeforeToZero)
{
    // Step 8 starts the running sum at 0, so the no-time mark does not survive a rebuild.
    SettingsFilterCutController cut;
    cut.UpdateOptimizedList();
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, 0, true}}));
    EXPECT_FALSE(cut == SettingsFilterCutController());
    EXPECT_FALSE(cut.IsEnabled());
    EXPECT_EQ(cut.Source2Result(1'000'000), 0);
}

TEST(CutController, TimeInIntervalIsHalfOpen)
{
    const Interval interval{10, 20, 0, false};
    EXPECT_FALSE(TimeInInterval(9, interval));
    EXPECT_TRUE(TimeInInterval(10, interval));
    EXPECT_TRUE(TimeInInterval(19, interval));
    EXPECT_FALSE(TimeInInterval(20, interval));
    EXPECT_FALSE(TimeInInterval(10, Interval{10, 10, 0, false}));
    EXPECT_FALSE(TimeInInterval(15, Interval{20, 10, 0, true}));
}

// --- AddInterval and UpdateOptimizedList ----------------------------------------------

TEST(CutController, KeptIntervalOnTheDefaultStateGivesDeletedKeptDeleted)
{
    const auto cut = OneKept();
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, OPEN, 1'000'000, true}}));
    EXPECT_TRUE(cut.IsEnabled());
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 1'000'000);
    EXPECT_EQ(cut.Source2Result(1'500'000), 500'000);
    EXPECT_EQ(cut.Source2Result(3'000'000), 1'000'000);
    EXPECT_EQ(cut.Result2Source(500'000), 1'500'000);
    EXPECT_EQ(cut.Result2Source(1'000'000), NO_TIME);
}

TEST(CutController, ThirdArgumentOfAddIntervalIsLostInTheRebuild)
{
    SettingsFilterCutController cut;
    cut.AddInterval(1'000'000, 2'000'000, 777, false);
    EXPECT_EQ(cut.GetIntervals(), OneKept().GetIntervals());
    cut.AddInterval(3'000'000, 4'000'000, -123'456'789, false);
    EXPECT_EQ(cut.GetOptInterval(3), (Interval{3'000'000, 4'000'000, 2'000'000, false}));
}

TEST(CutController, KeptIntervalOverTheWholeDeletedPartMergesIntoOneKeptInterval)
{
    SettingsFilterCutController cut;
    cut.AddInterval(0, OPEN, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, 0, false}}));
    EXPECT_TRUE(cut.IsEnabled());
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 5'000'000);
    // Result2Source with one kept interval: the time itself, without any check.
    EXPECT_EQ(cut.Result2Source(0), 0);
    EXPECT_EQ(cut.Result2Source(123'456), 123'456);
    EXPECT_EQ(cut.Result2Source(-7), -7);
    EXPECT_EQ(cut.Result2Source(OPEN + 5), OPEN + 5);
    EXPECT_EQ(cut.Source2Result(1'000'000), 1'000'000);
    // The negative-time rule applies to the lookup alone.
    EXPECT_EQ(cut.Source2Result(-5), -5);
}

TEST(CutController, LaterIntervalOverridesEarlierOnlyWhereTheyOverlap)
{
    SettingsFilterCutController keptThenDeleted;
    keptThenDeleted.AddInterval(1'000'000, 5'000'000, 0, false);
    keptThenDeleted.AddInterval(2'000'000, 3'000'000, 0, true);
    EXPECT_EQ(keptThenDeleted.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                                         {1'000'000, 2'000'000, 1'000'000, false},
                                                         {2'000'000, 3'000'000, 1'000'000, true},
                                                         {3'000'000, 5'000'000, 2'000'000, false},
                                                         {5'000'000, OPEN, 2'000'000, true}}));
    EXPECT_EQ(keptThenDeleted.GetOverallDuration(10'000'000), 3'000'000);

    // The other order: the kept interval added last wins over the deleted one.
    SettingsFilterCutController deletedThenKept;
    deletedThenKept.AddInterval(2'000'000, 3'000'000, 0, true);
    EXPECT_EQ(deletedThenKept.GetIntervals(), (Intervals{{0, OPEN, 0, true}}));
    deletedThenKept.AddInterval(1'000'000, 5'000'000, 0, false);
    EXPECT_EQ(deletedThenKept.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                                         {1'000'000, 5'000'000, 1'000'000, false},
                                                         {5'000'000, OPEN, 1'000'000, true}}));
}

TEST(CutController, PartlyOverlappingDeletedIntervalKeepsTheEarlierKeptPartOutsideIt)
{
    SettingsFilterCutController cut;
    cut.AddInterval(1'000'000, 3'000'000, 0, false);
    cut.AddInterval(2'000'000, 4'000'000, 0, true);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, OPEN, 1'000'000, true}}));
}

TEST(CutController, OverlappingDeletedIntervalsMergeIntoOne)
{
    SettingsFilterCutController cut;
    cut.AddInterval(0, OPEN, 0, false);
    cut.AddInterval(1'000'000, 3'000'000, 0, true);
    EXPECT_EQ(
        cut.GetIntervals(),
        (Intervals{{0, 1'000'000, 0, false}, {1'000'000, 3'000'000, 0, true}, {3'000'000, OPEN, 2'000'000, false}}));
    cut.AddInterval(2'000'000, 4'000'000, 0, true);
    EXPECT_EQ(
        cut.GetIntervals(),
        (Intervals{{0, 1'000'000, 0, false}, {1'000'000, 4'000'000, 0, true}, {4'000'000, OPEN, 3'000'000, false}}));
    EXPECT_EQ(cut.GetOverallDuration(10'000'000), 7'000'000);
    EXPECT_EQ(cut.Source2Result(5'000'000), 2'000'000);
    EXPECT_EQ(cut.Source2Result(2'000'000), 1'000'000);
    EXPECT_EQ(cut.Result2Source(2'000'000), 5'000'000);
    EXPECT_EQ(cut.Result2Source(999'999), 999'999);
    EXPECT_EQ(cut.Result2Source(1'000'000), 4'000'000);
}

TEST(CutController, AdjacentKeptIntervalsMerge)
{
    SettingsFilterCutController cut;
    cut.AddInterval(1'000'000, 2'000'000, 0, false);
    cut.AddInterval(2'000'000, 3'000'000, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 3'000'000, 1'000'000, false},
                                             {3'000'000, OPEN, 1'000'000, true}}));
}

TEST(CutController, StretchesThatNoIntervalCoversCountAsKept)
{
    CutControllerAccess cut;
    cut.SetRawIntervals({{0, 1'000'000, 0, true}, {2'000'000, 3'000'000, 0, true}});
    cut.UpdateOptimizedList();
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, 3'000'000, 1'000'000, true}}));
}

TEST(CutController, ThreeKeptStretchesAlternateWithRunningDeletedBefore)
{
    const auto cut = ThreeKept();
    EXPECT_EQ(cut.GetIntervals(), THREE_KEPT);
    EXPECT_EQ(cut.GetIntervalCount(), 7U);
    EXPECT_EQ(cut.GetOverallDuration(10'000'000), 3'000'000);
    // Rebuilding an optimised list changes nothing.
    auto again = cut;
    again.UpdateOptimizedList();
    EXPECT_EQ(again.GetIntervals(), THREE_KEPT);
}

TEST(CutController, ZeroLengthIntervalAddsNoStretch)
{
    SettingsFilterCutController onDefault;
    onDefault.AddInterval(3'000'000, 3'000'000, 0, false);
    EXPECT_EQ(onDefault.GetIntervals(), (Intervals{{0, OPEN, 0, true}}));
    EXPECT_FALSE(onDefault.IsEnabled());

    auto onKept = OneKept();
    onKept.AddInterval(1'500'000, 1'500'000, 0, true);
    EXPECT_EQ(onKept.GetIntervals(), OneKept().GetIntervals());
}

TEST(CutController, ListHoldingOnlyAZeroLengthIntervalComesOutEmpty)
{
    CutControllerAccess cut;
    cut.SetRawIntervals({{5, 5, 0, false}});
    cut.UpdateOptimizedList();
    EXPECT_EQ(cut.GetIntervalCount(), 0U);
    EXPECT_FALSE(cut.IsEnabled());
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetOptInterval(0); }), "No intervals created");
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 5'000'000);
    EXPECT_EQ(cut.Result2Source(0), NO_TIME);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(0); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.Source2Result(0); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.IsPointDeleted(0); }), NOT_FOUND);
    EXPECT_FALSE(cut.IsEmpty());

    cut.AddInterval(7, 7, 0, true);
    EXPECT_EQ(cut.GetIntervalCount(), 0U);
    cut.CutToDuration(1'000'000, 5'000'000);
    EXPECT_EQ(cut.GetIntervalCount(), 0U);
}

TEST(CutController, KeptIntervalAddedToAnEmptyListStandsAlone)
{
    CutControllerAccess cut;
    cut.SetRawIntervals({});
    cut.AddInterval(1'000'000, 2'000'000, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{1'000'000, 2'000'000, 0, false}}));
    EXPECT_TRUE(cut.IsEnabled());
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 1'000'000);
    EXPECT_EQ(cut.Result2Source(5), 5);
    EXPECT_EQ(cut.Source2Result(1'500'000), 1'500'000);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(500'000); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(2'000'000); }), NOT_FOUND);
}

TEST(CutController, MidpointTruncatesTowardZero)
{
    // Points -1, 0, OPEN: the midpoint of -1 and 0 is 0, outside [-1, 0), so the
    // default deleted interval holds it and everything merges into one deleted stretch.
    SettingsFilterCutController minusOne;
    minusOne.AddInterval(-1, 0, 0, false);
    EXPECT_EQ(minusOne.GetIntervals(), (Intervals{{-1, OPEN, 0, true}}));

    // Points -2, 0, OPEN: the midpoint -1 lies in [-2, 0), which stays kept.
    SettingsFilterCutController minusTwo;
    minusTwo.AddInterval(-2, 0, 0, false);
    EXPECT_EQ(minusTwo.GetIntervals(), (Intervals{{-2, 0, 0, false}, {0, OPEN, 0, true}}));
}

TEST(CutController, ExtremeTimesWrapAroundInsteadOfOverflowing)
{
    SettingsFilterCutController cut;
    cut.AddInterval(MIN, MAX, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{MIN, MAX, 0, false}}));
    EXPECT_EQ(cut.Result2Source(MAX), MAX);
    EXPECT_EQ(cut.Source2Result(5), 5);
    // MAX - MIN wraps to -1 (unsigned arithmetic, CONVENTIONS.md).
    EXPECT_EQ(cut.GetIntervalLength(0), -1);
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), -1);

    CutControllerAccess raw;
    raw.SetRawIntervals({{MIN, MAX, 0, true}});
    raw.UpdateOptimizedList(); // midpoint of MIN and MAX: 0
    EXPECT_EQ(raw.GetIntervals(), (Intervals{{MIN, MAX, 0, true}}));
}

// --- GetIntervalIndex and the remembered index ----------------------------------------

TEST(CutController, GetIntervalIndexOfANegativeTimeFindsTheIntervalHoldingZero)
{
    const auto oneKept = OneKept();
    EXPECT_EQ(oneKept.GetIntervalIndex(-5), 0);

    SettingsFilterCutController cut;
    cut.AddInterval(-10, 0, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{-10, 0, 0, false}, {0, OPEN, 0, true}}));
    EXPECT_EQ(cut.GetIntervalIndex(-5), 1);
    EXPECT_TRUE(cut.IsPointDeleted(-5));
    EXPECT_EQ(cut.Source2Result(-5), 0);
    EXPECT_EQ(cut.GetIntervalBeginTime(-5), 0);
}

TEST(CutController, GetIntervalIndexRemembersTheIntervalFoundLast)
{
    auto cut = ThreeKept<CutControllerAccess>();
    EXPECT_EQ(cut.RememberedIndex(), -1);
    EXPECT_EQ(cut.GetIntervalIndex(1'500'000), 1);
    EXPECT_EQ(cut.RememberedIndex(), 1);
    EXPECT_EQ(cut.GetIntervalIndex(1'200'000), 1);
    EXPECT_EQ(cut.GetIntervalIndex(8'000'000), 6);
    EXPECT_EQ(cut.RememberedIndex(), 6);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalIndex(OPEN); }), NOT_FOUND);
    EXPECT_EQ(cut.RememberedIndex(), 6);
    EXPECT_EQ(cut.Source2Result(3'500'000), 1'500'000);
    EXPECT_EQ(cut.RememberedIndex(), 3);
    cut.UpdateOptimizedList();
    EXPECT_EQ(cut.RememberedIndex(), -1);
    cut.GetIntervalEndTime(0);
    EXPECT_EQ(cut.RememberedIndex(), 0);
    cut.AddInterval(7'000'000, 7'000'000, 0, false);
    EXPECT_EQ(cut.RememberedIndex(), -1);
}

TEST(CutController, RememberedIndexWinsWhileItsIntervalHoldsTheTime)
{
    // Overlapping intervals, as only a raw list holds them: the cache decides.
    CutControllerAccess cut;
    cut.SetRawIntervals({{0, 10, 0, false}, {5, 15, 0, true}});
    EXPECT_EQ(cut.GetIntervalIndex(12), 1);
    EXPECT_EQ(cut.GetIntervalIndex(7), 1);
    EXPECT_TRUE(cut.IsPointDeleted(7));
    EXPECT_EQ(cut.GetIntervalIndex(2), 0);
    EXPECT_EQ(cut.GetIntervalIndex(7), 0);
    EXPECT_FALSE(cut.IsPointDeleted(7));
}

TEST(CutController, RememberedIndexPastTheCountIsIgnored)
{
    auto cut = OneKept<CutControllerAccess>();
    EXPECT_EQ(cut.GetIntervalIndex(3'000'000), 2);
    cut.SetRawIntervals({{0, 10, 0, false}});
    EXPECT_EQ(cut.RememberedIndex(), 2);
    EXPECT_EQ(cut.GetIntervalIndex(5), 0);
    EXPECT_EQ(cut.RememberedIndex(), 0);
}

// --- Mappings and lookups -------------------------------------------------------------

TEST(CutController, Source2ResultMapsDeletedTimesToTheCutAndKeptTimesRoundTrip)
{
    const auto cut = ThreeKept();
    EXPECT_EQ(cut.Source2Result(0), 0);
    EXPECT_EQ(cut.Source2Result(1'000'000), 0);
    EXPECT_EQ(cut.Source2Result(2'500'000), 1'000'000);
    EXPECT_EQ(cut.Source2Result(3'000'000), 1'000'000);
    EXPECT_EQ(cut.Source2Result(5'500'000), 2'500'000);
    EXPECT_EQ(cut.Source2Result(8'000'000), 3'000'000);
    EXPECT_EQ(cut.Source2Result(OPEN - 1), 3'000'000);
    EXPECT_EQ(cut.Result2Source(0), 1'000'000);
    EXPECT_EQ(cut.Result2Source(1'000'000), 3'000'000);
    EXPECT_EQ(cut.Result2Source(2'500'000), 5'500'000);
    EXPECT_EQ(cut.Result2Source(2'999'999), 5'999'999);
    EXPECT_EQ(cut.Result2Source(3'000'000), NO_TIME);
    EXPECT_EQ(cut.Result2Source(-1), NO_TIME);
    for (const avTime time : {1'000'000, 1'500'000, 1'999'999, 3'000'000, 3'700'000, 5'000'000, 5'999'999}) {
        EXPECT_EQ(cut.Result2Source(cut.Source2Result(time)), time) << time;
    }
}

TEST(CutController, LookupsReadTheIntervalThatHoldsTheTime)
{
    const auto cut = OneKept();
    EXPECT_TRUE(cut.IsPointDeleted(500'000));
    EXPECT_FALSE(cut.IsPointDeleted(1'000'000));
    EXPECT_FALSE(cut.IsPointDeleted(1'999'999));
    EXPECT_TRUE(cut.IsPointDeleted(2'000'000));
    EXPECT_TRUE(cut.IsPointDeleted(-3));
    EXPECT_EQ(cut.GetIntervalLength(0), 1'000'000);
    EXPECT_EQ(cut.GetIntervalLength(1'500'000), 1'000'000);
    EXPECT_EQ(cut.GetIntervalLength(3'000'000), 2591998000000);
    EXPECT_EQ(cut.GetIntervalBeginTime(-1), 0);
    EXPECT_EQ(cut.GetIntervalEndTime(-1), 1'000'000);
    EXPECT_EQ(cut.GetIntervalBeginTime(1'000'000), 1'000'000);
    EXPECT_EQ(cut.GetIntervalEndTime(1'000'000), 2'000'000);
    EXPECT_EQ(cut.GetIntervalBeginTime(3'000'000), 2'000'000);
    EXPECT_EQ(cut.GetIntervalEndTime(3'000'000), OPEN);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.IsPointDeleted(OPEN); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalLength(OPEN); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalBeginTime(OPEN); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetIntervalEndTime(OPEN); }), NOT_FOUND);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.Source2Result(OPEN); }), NOT_FOUND);
}

TEST(CutController, GetOptIntervalReturnsByPositionAndRejectsPositionsPastTheEnd)
{
    const auto cut = OneKept();
    EXPECT_EQ(cut.GetOptInterval(0), (Interval{0, 1'000'000, 0, true}));
    EXPECT_EQ(cut.GetOptInterval(1), (Interval{1'000'000, 2'000'000, 1'000'000, false}));
    EXPECT_EQ(cut.GetOptInterval(2), (Interval{2'000'000, OPEN, 1'000'000, true}));
    EXPECT_EQ(&cut.GetOptInterval(1), &cut.GetIntervals()[1]);
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetOptInterval(3); }), "Incorrect interval index");
    EXPECT_EQ(FormBDescription<std::logic_error>([&] { cut.GetOptInterval(std::numeric_limits<std::size_t>::max()); }),
              "Incorrect interval index");
}

// --- GetOverallDuration and CutToDuration ---------------------------------------------

TEST(CutController, OpenEndedKeptIntervalCountsUpToTheSourceDuration)
{
    SettingsFilterCutController cut;
    cut.AddInterval(2'000'000, OPEN, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 2'000'000, 0, true}, {2'000'000, OPEN, 2'000'000, false}}));
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 3'000'000);
    EXPECT_EQ(cut.GetOverallDuration(2'000'000), 0);
    EXPECT_EQ(cut.Result2Source(1'000'000), 3'000'000);
    EXPECT_EQ(cut.Source2Result(1'000'000'000'000), 999'998'000'000);
}

TEST(CutController, CutToDurationKeepsTheStoredOpenEndInTheNewDeletedInterval)
{
    SettingsFilterCutController cut;
    cut.AddInterval(2'000'000, OPEN, 0, false);
    cut.CutToDuration(1'000'000, 5'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 2'000'000, 0, true},
                                             {2'000'000, 3'000'000, 2'000'000, false},
                                             {3'000'000, OPEN, 2'000'000, true}}));
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 1'000'000);
}

TEST(CutController, CutToDurationAtOrAboveTheOverallDurationChangesNothingButTheIndex)
{
    auto cut = ThreeKept<CutControllerAccess>();
    EXPECT_EQ(cut.GetIntervalIndex(5'500'000), 5);
    cut.CutToDuration(3'000'000, 10'000'000);
    EXPECT_EQ(cut.GetIntervals(), THREE_KEPT);
    EXPECT_EQ(cut.RememberedIndex(), -1);
    EXPECT_EQ(cut.GetIntervalIndex(5'500'000), 5);
    cut.CutToDuration(4'000'000, 10'000'000);
    EXPECT_EQ(cut.GetIntervals(), THREE_KEPT);
    EXPECT_EQ(cut.RememberedIndex(), -1);
}

TEST(CutController, CutToDurationTrimsInsideTheLastKeptStretch)
{
    auto cut = ThreeKept();
    cut.CutToDuration(2'500'000, 10'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, 3'000'000, 1'000'000, true},
                                             {3'000'000, 4'000'000, 2'000'000, false},
                                             {4'000'000, 5'000'000, 2'000'000, true},
                                             {5'000'000, 5'500'000, 3'000'000, false},
                                             {5'500'000, OPEN, 3'000'000, true}}));
    EXPECT_EQ(cut.GetOverallDuration(10'000'000), 2'500'000);
}

TEST(CutController, CutToDurationRemovesAStretchAsLongAsTheExcessWholeAndKeepsItsPredecessors)
{
    auto cut = ThreeKept();
    cut.CutToDuration(2'000'000, 10'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, 3'000'000, 1'000'000, true},
                                             {3'000'000, 4'000'000, 2'000'000, false},
                                             {4'000'000, OPEN, 2'000'000, true}}));
    EXPECT_EQ(cut.GetOverallDuration(10'000'000), 2'000'000);
}

TEST(CutController, CutToDurationWalksBackOverSeveralKeptStretches)
{
    auto cut = ThreeKept();
    cut.CutToDuration(500'000, 10'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 1'500'000, 1'000'000, false},
                                             {1'500'000, OPEN, 1'000'000, true}}));
    EXPECT_EQ(cut.GetOverallDuration(10'000'000), 500'000);
}

TEST(CutController, CutToDurationCountsARemovedOpenEndedStretchUpToTheSourceDuration)
{
    // The open-ended stretch 4 s to the end counts 1 s of a 5 s source; after removing it
    // the walk goes on with the remaining excess of 0.5 s (Part 2.2).
    SettingsFilterCutController cut;
    cut.AddInterval(1'000'000, 2'000'000, 0, false);
    cut.AddInterval(4'000'000, OPEN, 0, false);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 2'000'000, 1'000'000, false},
                                             {2'000'000, 4'000'000, 1'000'000, true},
                                             {4'000'000, OPEN, 3'000'000, false}}));
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 2'000'000);
    cut.CutToDuration(500'000, 5'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, 1'000'000, 0, true},
                                             {1'000'000, 1'500'000, 1'000'000, false},
                                             {1'500'000, OPEN, 1'000'000, true}}));
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 500'000);
}

TEST(CutController, CutToDurationZeroDeletesEverything)
{
    auto cut = OneKept();
    cut.CutToDuration(0, 5'000'000);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, 0, true}}));
    EXPECT_FALSE(cut.IsEnabled());
    // A lone deleted interval counts as no cut list: the source duration again.
    EXPECT_EQ(cut.GetOverallDuration(5'000'000), 5'000'000);
}

TEST(CutController, CutToDurationStopsWhenNoKeptStretchIsLeft)
{
    // Left open by Part 2.2; ours stops the walk when the local deque is empty.
    SettingsFilterCutController onDefault;
    onDefault.CutToDuration(1'000'000, 5'000'000);
    EXPECT_EQ(onDefault.GetIntervals(), (Intervals{{0, OPEN, 0, true}})); // rebuilt by step 3

    auto negativeTarget = OneKept();
    negativeTarget.CutToDuration(-1, 5'000'000);
    EXPECT_EQ(negativeTarget.GetIntervals(), (Intervals{{0, OPEN, 0, true}}));
}

// --- Reset, comparison, copies and the base operations --------------------------------

TEST(CutController, ResetReturnsToTheDefaultState)
{
    auto cut = ThreeKept<CutControllerAccess>();
    cut.GetIntervalIndex(3'500'000);
    EXPECT_EQ(cut.RememberedIndex(), 3);
    cut.Reset();
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, NO_TIME, true}}));
    EXPECT_EQ(cut.RememberedIndex(), -1);
    EXPECT_TRUE(cut == SettingsFilterCutController());
    EXPECT_FALSE(cut.IsEnabled());
}

TEST(CutController, EqualityComparesAllFourFieldsOfEachIntervalAndIgnoresTheIndex)
{
    const auto a = OneKept<CutControllerAccess>();
    const auto b = OneKept<CutControllerAccess>();
    EXPECT_EQ(a.GetIntervalIndex(1'500'000), 1);
    EXPECT_NE(a.RememberedIndex(), b.RememberedIndex());
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a.IsEqualTo(b));
    EXPECT_FALSE(a == ThreeKept());
    EXPECT_FALSE(a.IsEqualTo(ThreeKept()));

    const Intervals base{{0, 10, 5, true}, {10, 20, 15, false}};
    CutControllerAccess left;
    left.SetRawIntervals(base);
    for (int field = 0; field < 4; ++field) {
        Intervals changed = base;
        switch (field) {
        case 0:
            changed[1].begin = 11;
            break;
        case 1:
            changed[1].end = 21;
            break;
        case 2:
            changed[1].deletedBefore = 16;
            break;
        default:
            changed[1].deleted = true;
            break;
        }
        CutControllerAccess right;
        right.SetRawIntervals(changed);
        EXPECT_FALSE(left == right) << field;
        EXPECT_FALSE(left.IsEqualTo(right)) << field;
    }
    CutControllerAccess same;
    same.SetRawIntervals(base);
    EXPECT_TRUE(left == same);
    CutControllerAccess shorter;
    shorter.SetRawIntervals({base[0]});
    EXPECT_FALSE(left == shorter);
}

TEST(CutController, IsEqualToWithAForeignTypeThrowsBadCast)
{
    const SettingsFilterCutController cut;
    const SettingsFilterSpeedUp speedUp;
    EXPECT_THROW(cut.IsEqualTo(speedUp), std::bad_cast);
    EXPECT_THROW(speedUp.IsEqualTo(cut), std::bad_cast);
}

TEST(CutController, CloneCopiesTheIntervalsAndTheIndex)
{
    auto cut = ThreeKept<CutControllerAccess>();
    cut.GetIntervalIndex(3'500'000);
    const std::unique_ptr<Settings> clone = cut.Clone();
    EXPECT_EQ(clone->GetClassId(), SettingsFilterCutController::CLASS_ID);
    const Settings& cloned = *clone;
    EXPECT_EQ(typeid(cloned), typeid(SettingsFilterCutController));
    const auto& copy = dynamic_cast<const SettingsFilterCutController&>(*clone);
    EXPECT_EQ(copy.GetIntervals(), THREE_KEPT);
    EXPECT_TRUE(clone->IsEqualTo(cut));
    CutControllerAccess reader;
    static_cast<SettingsFilterCutController&>(reader) = copy;
    EXPECT_EQ(reader.RememberedIndex(), 3);

    cut.Reset();
    EXPECT_EQ(copy.GetIntervals(), THREE_KEPT);
}

TEST(CutController, DeserializeIsTheBaseOneAndThrows)
{
    SettingsFilterCutController cut;
    const std::string text = "Not implemented fill from string for settings CLASS_ID = $$FILTER_CUT_CONTROLLER$$";
    EXPECT_EQ(FormADescription<SettingsException>([&] { cut.Deserialize(""); }), text);
    EXPECT_EQ(FormADescription<SettingsException>([&] { cut.Deserialize("begin=1"); }), text);
    EXPECT_EQ(cut.GetIntervals(), (Intervals{{0, OPEN, NO_TIME, true}}));
}

TEST(CutController, IsEmptyIsTheBaseOneAndAlwaysFalse)
{
    EXPECT_FALSE(SettingsFilterCutController().IsEmpty());
    EXPECT_FALSE(OneKept().IsEmpty());
    CutControllerAccess empty;
    empty.SetRawIntervals({});
    EXPECT_FALSE(empty.IsEmpty());
}

TEST(CutController, CatalogueListsTheIntervalsAsAJsonList)
{
    const auto* entry = Zorvan::SettingsCatalog::Find("$$FILTER_CUT_CONTROLLER$$");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Own(), "E");
    EXPECT_EQ(entry->FieldsToJson(SettingsFilterCutController()).dump(),
              R"({"intervals":[{"begin":0,"deleted":true,"deletedBefore":-9223372036854775808,"end":2592000000000}]})");
    EXPECT_EQ(entry->FieldsToJson(OneKept()).dump(),
              R"({"intervals":[{"begin":0,"deleted":true,"deletedBefore":0,"end":1000000},)"
              R"({"begin":1000000,"deleted":false,"deletedBefore":1000000,"end":2000000},)"
              R"({"begin":2000000,"deleted":true,"deletedBefore":1000000,"end":2592000000000}]})");
}

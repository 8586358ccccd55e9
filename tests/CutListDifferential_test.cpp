// SettingsFilterCutController against the plain full rebuild of CutListReference.h: seeded random
// runs of edits (overlapping, nested, empty and reversed intervals, intervals at and past the open
// end, cuts to a duration, resets, raw lists), after each of which the lists, the remembered index
// and a spread of lookups, failures included, must agree.
//
// ZORVAN_DIFF_ITERATIONS sets the number of runs (default 40, a few seconds, also under the
// sanitizers); run k always uses seed k. A long run:
//   ZORVAN_DIFF_ITERATIONS=20000 build/release/tests/CutListDifferential_test
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <tuple>

#include "CutListReference.h"
#include "TestSupport.h"

using namespace Zorvan::Proc;
using Interval = SettingsFilterCutController::Interval;
using Intervals = std::deque<Interval>;
using Reference = ZorvanTest::ReferenceCutList;

namespace Zorvan::Proc {
void PrintTo(const SettingsFilterCutController::Interval& interval, std::ostream* os)
{
    *os << "{" << interval.begin << ", " << interval.end << ", " << interval.deletedBefore << ", "
        << (interval.deleted ? "D" : "K") << "}";
}
} // namespace Zorvan::Proc

namespace {

constexpr avTime O = SettingsFilterCutController::OPEN_END;
constexpr avTime MIN = std::numeric_limits<avTime>::min();
constexpr avTime MAX = std::numeric_limits<avTime>::max();

class CutControllerAccess : public SettingsFilterCutController {
public:
    void SetRawIntervals(Intervals list) { intervals = std::move(list); }
    int RememberedIndex() const { return index; }
};

class RandomRun {
public:
    RandomRun(std::uint64_t seed)
        : rng(seed)
        , wild(seed % 4 == 3)
    {
    }

    void Edit()
    {
        const avTime what = Below(100);
        if (what < 80) {
            // Short in the wild runs, to make stretches of a microsecond or two below zero.
            const avTime reach = wild ? 3 : Below(4) ? 30 : 600;
            const avTime begin = Time();
            // Empty, reversed, to the open end, to anywhere, or a stretch after begin.
            const avTime end = std::array{begin, Reference::Sub(begin, 1 + Below(reach)), O, Time(),
                                          Reference::Add(begin, 1 + Below(reach))}[Below(8) % 5];
            const bool deleted = Below(2) == 0;
            cut.AddInterval(begin, end, Time(), deleted); // the third argument is lost
            reference.AddInterval(begin, end, deleted);
        } else if (what < 88) {
            const avTime source = Below(8) ? Below(3000) : O;
            const avTime target =
                Below(4) ? Reference::Sub(reference.GetOverallDuration(source), Below(100)) : Below(3000);
            cut.CutToDuration(target, source);
            reference.CutToDuration(target, source);
        } else if (what < 92) {
            cut.UpdateOptimizedList();
            reference.UpdateOptimizedList();
        } else if (what < 94) {
            cut.Reset();
            reference = Reference{};
        } else if (what < 96) {
            // Unsorted, overlapping, as a derived class may write it; the first deleted time before
            // is never 0, so the list cannot pass for one the controller rebuilt.
            Intervals raw;
            for (avTime i = Below(6); i > 0; --i) {
                raw.push_back(Interval{Time(), Time(), 1 + Below(1000), Below(2) == 0});
            }
            cut.SetRawIntervals(raw);
            reference.intervals = raw;
        } // otherwise only lookups, so that the remembered index carries over
    }

    void Lookups()
    {
        ASSERT_EQ(cut.GetIntervals(), reference.intervals);
        EXPECT_EQ(cut.RememberedIndex(), reference.index);
        std::vector<avTime> sources{Time(), Time(), Time(), -1 - Below(3)};
        std::vector<avTime> results{Time(), Time(), Below(1000)};
        if (!reference.intervals.empty()) {
            const Interval some = reference.intervals[Below(avTime(reference.intervals.size()))];
            const avTime result = Reference::Sub(some.begin, some.deletedBefore);
            const avTime resultEnd = Reference::Add(result, Reference::Sub(some.end, some.begin));
            sources.insert(sources.end(), {some.begin, some.end, Reference::Sub(some.end, 1)});
            results.insert(results.end(), {result, Reference::Sub(result, 1), resultEnd, Reference::Sub(resultEnd, 1)});
        }
        for (const avTime time : sources) {
            const std::optional<int> expected = reference.GetIntervalIndex(time);
            if (expected) {
                const Interval& interval = reference.intervals[std::size_t(*expected)];
                EXPECT_EQ(std::tuple(cut.GetIntervalIndex(time), cut.Source2Result(time), cut.IsPointDeleted(time),
                                     cut.GetIntervalBeginTime(time), cut.GetIntervalEndTime(time)),
                          std::tuple(*expected, *reference.Source2Result(time), interval.deleted, interval.begin,
                                     interval.end))
                    << time;
            } else {
                EXPECT_EQ(ZorvanTest::FormBDescription<std::logic_error>([&] { (void)cut.GetIntervalIndex(time); }),
                          "Can't find interval in SettingsFilterCutController")
                    << time;
            }
            EXPECT_EQ(cut.RememberedIndex(), reference.index) << time;
        }
        for (const avTime time : results) {
            EXPECT_EQ(cut.Result2Source(time), reference.Result2Source(time)) << time;
        }
    }

private:
    avTime Below(avTime bound) { return avTime(rng() % std::uint64_t(bound)); }

    // Mostly the first two thousand microseconds, where edits overlap, now and then the open end
    // or the largest time; in one run of four mostly the microseconds around zero, where midpoints
    // round toward zero, and now and then the smallest time.
    avTime Time()
    {
        if (wild && Below(16) != 0) {
            return -4 + Below(8);
        }
        if (wild && Below(2) == 0) {
            return MIN + Below(2);
        }
        const avTime pick = Below(40);
        return pick < 2 ? O - 2 + Below(5) : pick == 2 ? MAX - Below(2) : Below(2000);
    }

    std::mt19937_64 rng;
    bool wild;
    CutControllerAccess cut;
    Reference reference;
};

} // namespace

TEST(CutListDifferential, RandomEditsGiveTheListsAndLookupsOfTheFullRebuild)
{
    const char* iterations = std::getenv("ZORVAN_DIFF_ITERATIONS");
    const std::uint64_t runs = iterations ? std::stoull(iterations) : 40;
    for (std::uint64_t seed = 0; seed < runs && !HasFailure(); ++seed) {
        RandomRun run(seed);
        for (int step = 0; step < 300 && !HasFailure(); ++step) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(step));
            run.Edit();
            run.Lookups();
        }
    }
}

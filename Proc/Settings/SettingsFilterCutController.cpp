#include "Proc/Settings/SettingsFilterCutController.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// Sums and differences of times wrap around in unsigned arithmetic, so that extreme times
// (and the no-time value) never overflow a signed value (CONVENTIONS.md, Behaviour).
avTime WrapAdd(avTime a, avTime b)
{
    return static_cast<avTime>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

avTime WrapSub(avTime a, avTime b)
{
    return static_cast<avTime>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}

// (first + second) / 2 truncated toward zero, for first < second, without overflow:
// the floor midpoint from the unsigned distance, then one up for an odd negative sum.
avTime Midpoint(avTime first, avTime second)
{
    const std::uint64_t distance = static_cast<std::uint64_t>(second) - static_cast<std::uint64_t>(first);
    avTime middle = static_cast<avTime>(static_cast<std::uint64_t>(first) + distance / 2);
    if (middle < 0 && distance % 2 != 0) {
        ++middle;
    }
    return middle;
}

// An end equal to the open end counts as the source duration wherever durations are summed.
avTime CountedEnd(avTime end, avTime sourceDuration)
{
    return end == SettingsFilterCutController::OPEN_END ? sourceDuration : end;
}

} // namespace

const std::string SettingsFilterCutController::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_CUT_CONTROLLER$$";

bool TimeInInterval(const avTime& time, const SettingsFilterCutController::Interval& interval)
{
    return interval.begin <= time && time < interval.end;
}

SettingsFilterCutController::SettingsFilterCutController()
    : intervals{Interval{0, OPEN_END, NO_TIME, true}}
{
}

const std::string& SettingsFilterCutController::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterCutController::Clone() const
{
    return std::make_unique<SettingsFilterCutController>(*this);
}

bool SettingsFilterCutController::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterCutController&>(other);
}

bool SettingsFilterCutController::operator==(const SettingsFilterCutController& other) const
{
    return intervals == other.intervals;
}

void SettingsFilterCutController::AddInterval(avTime begin, avTime end, avTime deletedBefore, bool deleted)
{
    // Appended as an lvalue: the rvalue push_back instantiates deque::emplace_back, whose
    // demangled name begins with Interval& and would pass the library's version script.
    const Interval interval{begin, end, deletedBefore, deleted};
    intervals.push_back(interval);
    UpdateOptimizedList();
}

void SettingsFilterCutController::UpdateOptimizedList()
{
    // The interval found last is forgotten.
    index = -1;

    // Every begin and end becomes a point.
    std::vector<PointInfo> points;
    points.reserve(intervals.size() * 2);
    for (const Interval& interval : intervals) {
        points.push_back(PointInfo{interval.begin, false});
        points.push_back(PointInfo{interval.end, false});
    }

    // Sorted by time, duplicates removed.
    std::sort(points.begin(), points.end(), [](const PointInfo& a, const PointInfo& b) { return a.time < b.time; });
    points.erase(std::unique(points.begin(), points.end(),
                             [](const PointInfo& a, const PointInfo& b) { return a.time == b.time; }),
                 points.end());

    // The interval added last has the last word; uncovered stretches stay kept.
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const avTime middle = Midpoint(points[i].time, points[i + 1].time);
        for (auto interval = intervals.rbegin(); interval != intervals.rend(); ++interval) {
            if (TimeInInterval(middle, *interval)) {
                points[i].flag = interval->deleted;
                break;
            }
        }
    }

    // Runs of like flags merge among all points but the last, which stays at the end.
    if (!points.empty()) {
        const auto last = std::unique(points.begin(), points.end() - 1,
                                      [](const PointInfo& a, const PointInfo& b) { return a.flag == b.flag; });
        *last = points.back();
        points.erase(last + 1, points.end());
    }

    // The list rebuilt from the points, each interval with the deleted time before it.
    intervals.clear();
    avTime deletedBefore = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const Interval interval{points[i].time, points[i + 1].time, deletedBefore, points[i].flag};
        intervals.push_back(interval);
        if (interval.deleted) {
            deletedBefore = WrapAdd(deletedBefore, WrapSub(interval.end, interval.begin));
        }
    }
}

const SettingsFilterCutController::Interval& SettingsFilterCutController::GetOptInterval(std::size_t position) const
{
    if (intervals.empty()) {
        ThrowLogicError("No intervals created");
    }
    if (position >= intervals.size()) {
        ThrowLogicError("Incorrect interval index");
    }
    return intervals[position];
}

void SettingsFilterCutController::Reset()
{
    SettingsFilterCutController fresh;
    std::swap(*this, fresh);
}

bool SettingsFilterCutController::IsEnabled() const
{
    if (intervals.empty()) {
        return false;
    }
    if (intervals.size() > 1) {
        return true;
    }
    return !intervals.front().deleted;
}

avTime SettingsFilterCutController::GetOverallDuration(avTime sourceDuration) const
{
    // Nothing cut: an empty list, or exactly one interval and that one deleted.
    if (intervals.empty() || (intervals.size() == 1 && intervals.front().deleted)) {
        return sourceDuration;
    }
    avTime overall = 0;
    for (const Interval& interval : intervals) {
        if (!interval.deleted) {
            overall = WrapAdd(overall, WrapSub(CountedEnd(interval.end, sourceDuration), interval.begin));
        }
    }
    return overall;
}

void SettingsFilterCutController::CutToDuration(avTime targetDuration, avTime sourceDuration)
{
    // The walk uses this local copy, so that the rebuilt list does not disturb it.
    avTime overall = GetOverallDuration(sourceDuration);
    std::deque<Interval> kept;
    std::copy_if(intervals.begin(), intervals.end(), std::back_inserter(kept),
                 [](const Interval& interval) { return !interval.deleted; });

    // Kept stretches are deleted from the end until the target duration is reached.
    while (overall > targetDuration) {
        // With no kept stretch left there is nothing to delete, so stop.
        if (kept.empty()) {
            break;
        }
        const avTime excess = WrapSub(overall, targetDuration);
        const Interval last = kept.back();
        const avTime lastEnd = CountedEnd(last.end, sourceDuration);
        const avTime length = WrapSub(lastEnd, last.begin);
        if (length > excess) {
            // The new deleted interval keeps last's end as stored, the open end included.
            AddInterval(WrapSub(lastEnd, excess), last.end, last.deletedBefore, true);
            break;
        }
        AddInterval(last.begin, last.end, last.deletedBefore, true);
        kept.pop_back();
        // Its length as the overall duration counted it (open end = source duration).
        overall = WrapSub(overall, length);
    }

    UpdateOptimizedList();
}

int SettingsFilterCutController::GetIntervalIndex(avTime time) const
{
    if (time < 0) {
        time = 0;
    }
    if (index >= 0 && static_cast<std::size_t>(index) < intervals.size() &&
        TimeInInterval(time, intervals[static_cast<std::size_t>(index)])) {
        return index;
    }
    for (std::size_t i = 0; i < intervals.size(); ++i) {
        if (TimeInInterval(time, intervals[i])) {
            index = static_cast<int>(i);
            return index;
        }
    }
    ThrowLogicError("Can't find interval in SettingsFilterCutController");
}

avTime SettingsFilterCutController::Source2Result(avTime time) const
{
    const Interval& interval = intervals[static_cast<std::size_t>(GetIntervalIndex(time))];
    const avTime source = interval.deleted ? interval.begin : time;
    // In the default state deleted-before is the no-time value: the difference wraps around.
    return WrapSub(source, interval.deletedBefore);
}

avTime SettingsFilterCutController::Result2Source(avTime time) const
{
    if (intervals.empty()) {
        return NO_TIME;
    }
    if (intervals.size() == 1 && !intervals.front().deleted) {
        return time;
    }
    for (const Interval& interval : intervals) {
        if (interval.deleted) {
            continue;
        }
        const avTime source = WrapAdd(interval.deletedBefore, time);
        if (interval.begin <= source && source < interval.end) {
            return source;
        }
    }
    return NO_TIME;
}

bool SettingsFilterCutController::IsPointDeleted(avTime time) const
{
    return intervals[static_cast<std::size_t>(GetIntervalIndex(time))].deleted;
}

avTime SettingsFilterCutController::GetIntervalLength(avTime time) const
{
    const Interval& interval = intervals[static_cast<std::size_t>(GetIntervalIndex(time))];
    return WrapSub(interval.end, interval.begin);
}

avTime SettingsFilterCutController::GetIntervalBeginTime(avTime time) const
{
    return intervals[static_cast<std::size_t>(GetIntervalIndex(time))].begin;
}

avTime SettingsFilterCutController::GetIntervalEndTime(avTime time) const
{
    return intervals[static_cast<std::size_t>(GetIntervalIndex(time))].end;
}

const std::deque<SettingsFilterCutController::Interval>& SettingsFilterCutController::GetIntervals() const
{
    return intervals;
}

std::size_t SettingsFilterCutController::GetIntervalCount() const
{
    return intervals.size();
}

} // namespace Zorvan::Proc

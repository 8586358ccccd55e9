#include "Proc/Settings/SettingsFilterCutController.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <numeric>
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

using Interval = SettingsFilterCutController::Interval;
using Intervals = std::deque<Interval>;

// Gives every interval from the given position on the deleted time before it. The intervals from
// settledFrom on are unchanged, so once one of them already holds the right time, so do the rest:
// a cut that leaves the deleted total as it was costs nothing beyond its own stretches.
void RecountDeletedBefore(Intervals& list, std::size_t from, std::size_t settledFrom)
{
    avTime deletedBefore = 0;
    if (from > 0) {
        const Interval& previous = list[from - 1];
        deletedBefore = previous.deletedBefore;
        if (previous.deleted) {
            deletedBefore = WrapAdd(deletedBefore, WrapSub(previous.end, previous.begin));
        }
    }
    for (std::size_t position = from; position < list.size(); ++position) {
        Interval& interval = list[position];
        if (position >= settledFrom && interval.deletedBefore == deletedBefore) {
            return;
        }
        interval.deletedBefore = deletedBefore;
        if (interval.deleted) {
            deletedBefore = WrapAdd(deletedBefore, WrapSub(interval.end, interval.begin));
        }
    }
}

// True when a rebuild would give the list back unchanged: gap-free, non-empty stretches of
// alternating kind with the deleted time before each, and none so short and so far below zero
// that its midpoint rounds up onto its end (there the next stretch would decide its kind).
bool RebuildsToItself(const Intervals& list)
{
    if (list.empty()) {
        return false;
    }
    avTime deletedBefore = 0;
    const Interval* previous = nullptr;
    for (const Interval& interval : list) {
        if (interval.begin >= interval.end || Midpoint(interval.begin, interval.end) == interval.end ||
            interval.deletedBefore != deletedBefore ||
            (previous && (previous->end != interval.begin || previous->deleted == interval.deleted))) {
            return false;
        }
        if (interval.deleted) {
            deletedBefore = WrapAdd(deletedBefore, WrapSub(interval.end, interval.begin));
        }
        previous = &interval;
    }
    return true;
}

// The full rebuild. Every begin and end becomes a point; between two neighbouring points the
// interval added last that holds their midpoint gives the kind, and stretches no interval covers
// stay kept; like neighbours merge. Each interval's points bound a run of stretches, and the
// intervals paint their runs from the last added back, each stretch once (a union-find skips the
// stretches already painted), so that the whole costs a sort rather than a scan per stretch.
void Rebuild(Intervals& list)
{
    std::vector<avTime> points;
    points.reserve(list.size() * 2);
    for (const Interval& interval : list) {
        points.push_back(interval.begin);
        points.push_back(interval.end);
    }
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());

    const std::size_t stretches = points.empty() ? 0 : points.size() - 1;
    std::vector<signed char> kind(stretches, -1); // -1: no interval covers the stretch
    std::vector<std::size_t> unpainted(stretches + 1);
    std::iota(unpainted.begin(), unpainted.end(), std::size_t{0});
    const auto nextUnpainted = [&unpainted](std::size_t stretch) {
        std::size_t root = stretch;
        while (unpainted[root] != root) {
            root = unpainted[root];
        }
        while (unpainted[stretch] != root) {
            stretch = std::exchange(unpainted[stretch], root);
        }
        return root;
    };
    const auto position = [&points](avTime time) {
        return static_cast<std::size_t>(std::lower_bound(points.begin(), points.end(), time) - points.begin());
    };
    for (auto interval = list.rbegin(); interval != list.rend(); ++interval) {
        if (interval->begin >= interval->end) {
            continue;
        }
        const std::size_t last = position(interval->end);
        for (std::size_t stretch = nextUnpainted(position(interval->begin)); stretch < last;
             stretch = nextUnpainted(stretch)) {
            kind[stretch] = interval->deleted ? 1 : 0;
            unpainted[stretch] = stretch + 1;
        }
    }

    Intervals rebuilt;
    for (std::size_t stretch = 0; stretch < stretches; ++stretch) {
        // A stretch one long below zero has its midpoint rounded up onto its end: the next
        // stretch, if any, decides its kind.
        const bool roundsUp = Midpoint(points[stretch], points[stretch + 1]) == points[stretch + 1];
        const std::size_t holder = roundsUp ? stretch + 1 : stretch;
        const bool deleted = holder < stretches && kind[holder] == 1;
        if (!rebuilt.empty() && rebuilt.back().deleted == deleted) {
            rebuilt.back().end = points[stretch + 1];
        } else {
            // Appended as lvalues here and below, for the reason AddInterval gives.
            const Interval interval{points[stretch], points[stretch + 1], 0, deleted};
            rebuilt.push_back(interval);
        }
    }
    RecountDeletedBefore(rebuilt, 0, rebuilt.size());
    list.swap(rebuilt);
}

// AddInterval on a list that rebuilds to itself, with every time at or after zero: the rebuild
// would change only the stretches the new interval overlaps and, where its times lie beyond the
// list, add kept stretches out to them. So those are rewritten in place, together with one
// untouched interval on each side so that the new stretches merge with their neighbours, and the
// deleted time before is recounted from there on. An interval that ends before it begins covers
// nothing, but its times still count as points.
void AddToRebuiltList(Intervals& list, avTime begin, avTime end, bool deleted)
{
    const avTime low = std::min(begin, end);
    const avTime high = std::max(begin, end);
    const auto touchedFrom =
        std::partition_point(list.begin(), list.end(), [low](const Interval& interval) { return interval.end <= low; });
    const auto untouchedFrom = std::partition_point(touchedFrom, list.end(),
                                                    [high](const Interval& interval) { return interval.begin < high; });
    const auto first = touchedFrom == list.begin() ? touchedFrom : std::prev(touchedFrom);
    const auto last = untouchedFrom == list.end() ? untouchedFrom : std::next(untouchedFrom);

    std::vector<Interval> stretches;
    const auto append = [&stretches](avTime from, avTime to, bool kind) {
        if (from >= to) {
            return;
        }
        if (!stretches.empty() && stretches.back().deleted == kind) {
            stretches.back().end = to;
            return;
        }
        const Interval stretch{from, to, 0, kind};
        stretches.push_back(stretch);
    };
    const auto overlay = [&](avTime from, avTime to, bool kind) {
        if (begin >= end) {
            append(from, to, kind);
            return;
        }
        append(from, std::min(to, begin), kind);
        append(std::max(from, begin), std::min(to, end), deleted);
        append(std::max(from, end), to, kind);
    };
    const avTime listBegin = list.front().begin;
    const avTime listEnd = list.back().end;
    if (low < listBegin) {
        overlay(low, listBegin, false);
    }
    for (auto interval = first; interval != last; ++interval) {
        overlay(interval->begin, interval->end, interval->deleted);
    }
    if (high > listEnd) {
        overlay(listEnd, high, false);
    }

    const auto from = static_cast<std::size_t>(first - list.begin());
    const auto replaced = static_cast<std::size_t>(last - first);
    const std::size_t common = std::min(replaced, stretches.size());
    std::copy_n(stretches.begin(), common, first);
    if (stretches.size() < replaced) {
        list.erase(first + static_cast<std::ptrdiff_t>(common), last);
    } else {
        list.insert(last, stretches.begin() + static_cast<std::ptrdiff_t>(common), stretches.end());
    }
    RecountDeletedBefore(list, from, from + stretches.size());
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
    if (IsOptimised() && intervals.front().begin >= 0 && std::min(begin, end) >= 0) {
        AddToRebuiltList(intervals, begin, end, deleted);
        index = -1;
        RememberOptimisedShape();
        return;
    }
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
    if (!RebuildsToItself(intervals)) {
        Rebuild(intervals);
    }
    RememberOptimisedShape();
}

bool SettingsFilterCutController::IsOptimised() const
{
    return optimised.count != 0 && intervals.size() == optimised.count && intervals.front() == optimised.front &&
           intervals.back() == optimised.back;
}

void SettingsFilterCutController::RememberOptimisedShape()
{
    optimised =
        intervals.empty() ? OptimisedShape{} : OptimisedShape{intervals.size(), intervals.front(), intervals.back()};
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
    if (IsOptimised()) {
        // Sorted and disjoint: only the last interval that begins at or before the time can hold it.
        const auto after = std::upper_bound(intervals.begin(), intervals.end(), time,
                                            [](avTime t, const Interval& interval) { return t < interval.begin; });
        if (after != intervals.begin() && TimeInInterval(time, *std::prev(after))) {
            index = static_cast<int>(after - intervals.begin() - 1);
            return index;
        }
        ThrowLogicError("Can't find interval in SettingsFilterCutController");
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
    if (IsOptimised()) {
        // An interval starts in the result at its begin minus the deleted time before it. Counted
        // from the first interval in unsigned arithmetic these offsets never fall (a deleted one
        // shares its offset with the kept one after it), and the kept stretches tile the result
        // without overlap even where the times wrap around: the last interval at or before the
        // offset of the time is the only one that can hold it.
        const avTime origin = WrapSub(intervals.front().begin, intervals.front().deletedBefore);
        const auto offset = [origin](const Interval& interval) {
            return static_cast<std::uint64_t>(WrapSub(WrapSub(interval.begin, interval.deletedBefore), origin));
        };
        const auto wanted = static_cast<std::uint64_t>(WrapSub(time, origin));
        // The first offset is 0, so the search never stops at the front.
        const Interval& found = *std::prev(
            std::upper_bound(intervals.begin(), intervals.end(), wanted,
                             [&offset](std::uint64_t w, const Interval& interval) { return w < offset(interval); }));
        const auto length = static_cast<std::uint64_t>(WrapSub(found.end, found.begin));
        if (!found.deleted && wanted - offset(found) < length) {
            return WrapAdd(found.deletedBefore, time);
        }
        return NO_TIME;
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

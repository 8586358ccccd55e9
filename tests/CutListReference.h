#pragma once
// The cut list as first written, kept as the yardstick of SettingsFilterCutController: every
// change rebuilds the whole list by asking, for each stretch between two neighbouring times,
// which interval added last holds its midpoint, and a lookup that misses the remembered
// interval scans from the front. Quadratic to cubic, but plainly right. Free of GoogleTest so
// that the benchmarks can run it too.
#include <algorithm>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "Proc/Settings/SettingsFilterCutController.h"

namespace ZorvanTest {

class ReferenceCutList {
public:
    using avTime = Zorvan::Proc::avTime;
    using Controller = Zorvan::Proc::SettingsFilterCutController;
    using Interval = Controller::Interval;

    std::deque<Interval> intervals{Interval{0, Controller::OPEN_END, Controller::NO_TIME, true}};
    int index = -1;

    static avTime Add(avTime a, avTime b) { return avTime(std::uint64_t(a) + std::uint64_t(b)); }
    static avTime Sub(avTime a, avTime b) { return avTime(std::uint64_t(a) - std::uint64_t(b)); }
    static avTime Counted(avTime end, avTime source) { return end == Controller::OPEN_END ? source : end; }

    void AddInterval(avTime begin, avTime end, bool deleted)
    {
        intervals.push_back(Interval{begin, end, 0, deleted});
        UpdateOptimizedList();
    }

    void UpdateOptimizedList()
    {
        index = -1;
        std::vector<avTime> points;
        for (const Interval& interval : intervals) {
            points.push_back(interval.begin);
            points.push_back(interval.end);
        }
        std::sort(points.begin(), points.end());
        points.erase(std::unique(points.begin(), points.end()), points.end());
        std::vector<bool> flags(points.size(), false);
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            // (a + b) / 2 truncated toward zero, in 128 bits so that it cannot overflow.
            const avTime middle = avTime((__int128(points[i]) + points[i + 1]) / 2);
            for (auto interval = intervals.rbegin(); interval != intervals.rend(); ++interval) {
                if (Zorvan::Proc::TimeInInterval(middle, *interval)) {
                    flags[i] = interval->deleted;
                    break;
                }
            }
        }
        intervals.clear();
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            if (i > 0 && flags[i] == flags[i - 1]) {
                intervals.back().end = points[i + 1];
                continue;
            }
            intervals.push_back(Interval{points[i], points[i + 1], 0, flags[i]});
        }
        avTime deletedBefore = 0;
        for (Interval& interval : intervals) {
            interval.deletedBefore = deletedBefore;
            if (interval.deleted) {
                deletedBefore = Add(deletedBefore, Sub(interval.end, interval.begin));
            }
        }
    }

    avTime GetOverallDuration(avTime source) const
    {
        if (intervals.empty() || (intervals.size() == 1 && intervals.front().deleted)) {
            return source;
        }
        avTime overall = 0;
        for (const Interval& interval : intervals) {
            if (!interval.deleted) {
                overall = Add(overall, Sub(Counted(interval.end, source), interval.begin));
            }
        }
        return overall;
    }

    void CutToDuration(avTime target, avTime source)
    {
        avTime overall = GetOverallDuration(source);
        std::deque<Interval> kept;
        std::copy_if(intervals.begin(), intervals.end(), std::back_inserter(kept), [](auto& i) { return !i.deleted; });
        while (overall > target && !kept.empty()) {
            const Interval last = kept.back();
            const avTime length = Sub(Counted(last.end, source), last.begin);
            if (length > Sub(overall, target)) {
                AddInterval(Sub(Counted(last.end, source), Sub(overall, target)), last.end, true);
                break;
            }
            AddInterval(last.begin, last.end, true);
            kept.pop_back();
            overall = Sub(overall, length);
        }
        UpdateOptimizedList();
    }

    // No value where the controller throws "Can't find interval".
    std::optional<int> GetIntervalIndex(avTime time)
    {
        time = std::max<avTime>(time, 0);
        if (index >= 0 && std::size_t(index) < intervals.size() &&
            Zorvan::Proc::TimeInInterval(time, intervals[std::size_t(index)])) {
            return index;
        }
        for (std::size_t i = 0; i < intervals.size(); ++i) {
            if (Zorvan::Proc::TimeInInterval(time, intervals[i])) {
                return index = int(i);
            }
        }
        return std::nullopt;
    }

    std::optional<avTime> Source2Result(avTime time)
    {
        const std::optional<int> found = GetIntervalIndex(time);
        if (!found) {
            return std::nullopt;
        }
        const Interval& interval = intervals[std::size_t(*found)];
        return Sub(interval.deleted ? interval.begin : time, interval.deletedBefore);
    }

    avTime Result2Source(avTime time) const
    {
        if (intervals.size() == 1 && !intervals.front().deleted) {
            return time;
        }
        for (const Interval& interval : intervals) {
            const avTime source = Add(interval.deletedBefore, time);
            if (!interval.deleted && interval.begin <= source && source < interval.end) {
                return source;
            }
        }
        return Controller::NO_TIME;
    }
};

} // namespace ZorvanTest

#pragma once
#include <cstddef>
#include <deque>
#include <limits>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// The cut list of a stream, kept as a sorted, gap-free partition of the source
// timeline into alternating deleted and kept stretches, and the mapping between source
// time and result time.
class ZORVAN_SETTINGS_EXPORT SettingsFilterCutController : public Settings {
public:
    static const std::string CLASS_ID;

    // The open end: thirty days; an end equal to it counts as the source duration in sums.
    static constexpr avTime OPEN_END = 2592000000000;
    // The library's mark for no time: the smallest 64-bit value.
    static constexpr avTime NO_TIME = std::numeric_limits<avTime>::min();

    // One stretch of the source timeline: [begin, end), the deleted time before it, deleted.
    struct Interval {
        avTime begin = 0;
        avTime end = 0;
        avTime deletedBefore = 0;
        bool deleted = false;

        bool operator==(const Interval&) const = default;
    };

    // The working record of UpdateOptimizedList.
    struct PointInfo {
        avTime time = 0;
        bool flag = false;
    };

    // The default state: one deleted interval over 0 to the open end, no deleted-before time.
    SettingsFilterCutController();

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    // Same count and, in order, all four fields of each interval; the index takes no part.
    bool operator==(const SettingsFilterCutController& other) const;

    // Appends the interval and rebuilds; the third argument is lost in the rebuild, which
    // recomputes every deleted-before time.
    void AddInterval(avTime begin, avTime end, avTime deletedBefore, bool deleted);
    void UpdateOptimizedList();
    // std::logic_error "No intervals created" / "Incorrect interval index" (form B).
    const Interval& GetOptInterval(std::size_t position) const;
    void Reset();
    bool IsEnabled() const;
    avTime GetOverallDuration(avTime sourceDuration) const;
    void CutToDuration(avTime targetDuration, avTime sourceDuration);
    // std::logic_error "Can't find interval in SettingsFilterCutController" (form B).
    int GetIntervalIndex(avTime time) const;
    avTime Source2Result(avTime time) const;
    avTime Result2Source(avTime time) const;
    bool IsPointDeleted(avTime time) const;
    avTime GetIntervalLength(avTime time) const;
    avTime GetIntervalBeginTime(avTime time) const;
    avTime GetIntervalEndTime(avTime time) const;

    const std::deque<Interval>& GetIntervals() const;
    std::size_t GetIntervalCount() const;

protected:
    // Protected, not private: a derived class (the tests) may build lists that the public
    // operations cannot reach, such as an empty one. One that rewrites intervals in place, keeping
    // their count and the first and last of them, calls UpdateOptimizedList before anything else.
    std::deque<Interval> intervals;
    // The index of the interval found last, a cache for the next lookup; const lookups write it.
    mutable int index = -1;

private:
    // The count and the two ends of the list as the last rebuild left it (count 0: no such list).
    // While the list still matches, it is taken to be that sorted, gap-free partition: lookups
    // search it by halves and AddInterval rewrites only the stretches a new interval touches, so
    // that cut lists of automatic editing, thousands of cuts long, stay cheap to build and to read.
    struct OptimisedShape {
        std::size_t count = 0;
        Interval front;
        Interval back;
    };
    OptimisedShape optimised;

    bool IsOptimised() const;
    void RememberOptimisedShape();
};

// Begin is at most the time and the time is below end.
ZORVAN_SETTINGS_EXPORT bool TimeInInterval(const avTime& time, const SettingsFilterCutController::Interval& interval);

} // namespace Zorvan::Proc

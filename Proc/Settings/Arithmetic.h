#pragma once
// Arithmetic shared by the library's own sources. Internal: not installed with the public
// headers (see CMakeLists.txt).
#include <cmath>
#include <limits>

namespace Zorvan::Proc {

// Truncation toward zero into 32-bit unsigned, saturating at both limits; not-a-number
// gives 0 (as the float-to-unsigned conversion of 64-bit Arm does), so sizes and points
// come out the same on every platform the engine runs on.
inline unsigned int TruncateSaturated(double value)
{
    constexpr double limit = 4294967296.0; // 2^32
    if (!(value > 0.0)) {
        return 0U;
    }
    if (value >= limit) {
        return std::numeric_limits<unsigned int>::max();
    }
    return static_cast<unsigned int>(value);
}

// Truncation toward zero into int, saturating at both limits; not-a-number gives 0 (as
// the float-to-int conversion of 64-bit Arm does), so the effects' integer amounts come out
// the same on every platform the engine runs on.
inline int TruncateToIntSaturated(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= 2147483648.0) { // 2^31
        return std::numeric_limits<int>::max();
    }
    if (value <= -2147483649.0) { // anything above truncates to -2^31 or more
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}

} // namespace Zorvan::Proc

#pragma once
// Arithmetic shared by the library's own sources. Internal: not installed with the public
// headers (see CMakeLists.txt).
#include <limits>

namespace Zorvan::Proc {

// Truncation toward zero into 32-bit unsigned, saturating at both limits; not-a-number
// gives 0 (as the float-to-unsigned conversion of 64-bit Arm does). Parts 1.4 and 2.1.
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

} // namespace Zorvan::Proc

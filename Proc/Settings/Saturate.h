#pragma once
// Saturate<T>, the one global template of the library (not in Zorvan::Proc): the engine's
// sources call it unqualified.

// `low` if the value is below `low`, else `high` if it is above `high`, else the
// value. Meant for T int, unsigned int and double. Both tests are strict comparisons, so a
// not-a-number value fails both and comes back as it is. `low` is not checked against `high`.
template <typename T>
constexpr T Saturate(T value, T low, T high)
{
    if (value < low) {
        return low;
    }
    if (value > high) {
        return high;
    }
    return value;
}

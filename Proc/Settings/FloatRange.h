#pragma once
// Float parameters held within a closed range, as the image-editor colour effects hold them:
// some of their setters clamp, the others and some option strings refuse a value outside.
// Internal to the library's sources: not installed with the public headers (see CMakeLists.txt).
// Each class keeps its own ranges and reads its own keys in its own order; these helpers only
// spell out the clamp and the refusal.
#include <string>
#include <utility>

#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc::FloatRange {

// Lower and upper bound, both included.
using Range = std::pair<float, float>;

// The short text with which option strings refuse a value; the setters' own texts are longer.
inline constexpr char kInvalidValue[] = "Invalid value";

// The value held to the range; a not-a-number value comes back as it is.
inline float Clamp(float value, const Range& range)
{
    return Saturate(value, range.first, range.second);
}

// Stores the value when it lies in the range, else throws EffectException with the message and
// leaves the target as it was. Not-a-number lies in no range.
inline void StoreOrThrow(float value, const Range& range, const std::string& message, float& target)
{
    if (!(value >= range.first && value <= range.second)) {
        ThrowEffect(message);
    }
    target = value;
}

} // namespace Zorvan::Proc::FloatRange

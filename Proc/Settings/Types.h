#pragma once
// The small plain value types shared by many records, and Saturate<T>.
// CropInfo, CropInfoF, RelativePoint and NeuralNetworkModelInfo have headers of their own.
#include <cstdint>

#include "Proc/Settings/Export.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan {

// A frame size in pixels, width then height, unsigned 32-bit each.
// The exact `==` (field by field) lets records compare their optional<FrameSize> members.
struct ZORVAN_SETTINGS_EXPORT FrameSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    bool operator==(const FrameSize&) const = default;
};

} // namespace Zorvan

namespace Zorvan::Proc {

// The library's time: a signed 64-bit count of microseconds (one second is
// 1000000). The smallest 64-bit value marks a time that is not set; 2592000000000
// (thirty days) marks the open end of a source in cut lists and trimmers.
using avTime = std::int64_t;

// Four bytes of colour, red in the lowest byte, then green, blue, and alpha in the highest
// byte. Each record that packs colour keys says whether the packed alpha is 0 or 255.
using Color = std::uint32_t;

// A rectangle relative to the frame: left, top, width, height. The trackers check the
// values. The exact `==` compares field by field with the double `==`.
struct ZORVAN_SETTINGS_EXPORT RectRel {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;

    bool operator==(const RectRel&) const = default;
};

// A floating colour: red, green, blue, alpha. The colour-blending records check the values.
// The exact `==` compares field by field with the float `==`.
struct ZORVAN_SETTINGS_EXPORT ColorF {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 0.0F;

    bool operator==(const ColorF&) const = default;
};

} // namespace Zorvan::Proc

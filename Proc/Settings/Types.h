#pragma once
// Part 1.4: the small plain value types shared by many records, and Saturate<T>.
// CropInfo, CropInfoF, RelativePoint and NeuralNetworkModelInfo have headers of their own.
#include <cstdint>

#include "Proc/Settings/Export.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan {

// Part 1.4 / Part 2.4: a frame size in pixels, width then height, unsigned 32-bit each.
// The exact `==` is an addition of ours (field by field), for optional<FrameSize> members.
struct ZORVAN_SETTINGS_EXPORT FrameSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    bool operator==(const FrameSize&) const = default;
};

} // namespace Zorvan

namespace Zorvan::Proc {

// Part 1.4: the library's time: a signed 64-bit count of microseconds (one second is
// 1000000). The smallest 64-bit value marks a time that is not set; 2592000000000
// (thirty days) marks the open end of a source in cut lists and trimmers.
using avTime = std::int64_t;

// Overview: four bytes of colour, red in the lowest byte, then green, blue, and alpha in
// the highest byte. Each Part says whether a packed alpha is 0 or 255.
using Color = std::uint32_t;

// Part 1.4: a rectangle relative to the frame: left, top, width, height. Part 3.2 checks
// the values. The exact `==` is an addition of ours (field by field, the double `==`).
struct ZORVAN_SETTINGS_EXPORT RectRel {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;

    bool operator==(const RectRel&) const = default;
};

// Part 1.4: a floating colour: red, green, blue, alpha. Part 5.4 checks the values.
// The exact `==` is an addition of ours (field by field, the float `==`).
struct ZORVAN_SETTINGS_EXPORT ColorF {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 0.0F;

    bool operator==(const ColorF&) const = default;
};

} // namespace Zorvan::Proc

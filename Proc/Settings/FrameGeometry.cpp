#include "Proc/Settings/FrameGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "Proc/Settings/Arithmetic.h"

namespace Zorvan::Proc {

namespace {

// The largest side the renderer's textures take.
constexpr std::uint32_t kMaxSide = 4096;

struct Point {
    double x;
    double y;
};

// (x, y) under the transform, divided by its w.
Point Map(const Conf::Transform2D& transform, double x, double y)
{
    const auto& m = transform.m;
    const double w = m[8] + m[2] * x + m[5] * y;
    return {(m[6] + m[0] * x + m[3] * y) / w, (m[7] + m[1] * x + m[4] * y) / w};
}

double Distance(const Point& from, const Point& to)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    return std::sqrt(dx * dx + dy * dy);
}

} // namespace

Conf::FrameInfo BoundFrameInfo(const Conf::FrameInfo& frameInfo, const Conf::Transform2D& transform, bool even)
{
    Conf::Transform2D inPixels = transform;
    inPixels.m[6] *= frameInfo.width;
    inPixels.m[7] *= frameInfo.height;
    return inPixels.GetBoundingBox(frameInfo, even);
}

namespace EditorAlgorithms {

Conf::FrameInfo TransformFrameInfo(const Conf::FrameInfo& frameInfo, const Conf::Transform2D& transform, bool even)
{
    const Point origin = Map(transform, 0.0, 0.0);
    const double stepX = Distance(origin, Map(transform, 1.0, 0.0));
    const double stepY = Distance(origin, Map(transform, 0.0, 1.0));

    // The ratio wraps the displayed widths at 32 bits and the aspect does not: frames of
    // saved projects were sized so, and must come back at the same size.
    const std::uint32_t shownWidth32 = frameInfo.parNumerator * frameInfo.width;
    const std::uint32_t shownHeight32 = frameInfo.parDenominator * frameInfo.height;
    const double ratio = (shownWidth32 / stepX) / (shownHeight32 / stepY);
    const double aspect = static_cast<double>(std::uint64_t{frameInfo.parNumerator} * frameInfo.width) /
                          static_cast<double>(std::uint64_t{frameInfo.parDenominator} * frameInfo.height);

    std::uint32_t width = frameInfo.width;
    std::uint32_t height = frameInfo.height;
    if (ratio > aspect) {
        width = TruncateSaturated(ratio * width / aspect + 0.5);
    } else {
        height = TruncateSaturated(aspect * height / ratio + 0.5);
    }

    const std::uint32_t larger = std::max(width, height);
    if (larger > kMaxSide) {
        const double factor = static_cast<double>(kMaxSide) / larger;
        width = TruncateSaturated(width * factor + 0.5);
        height = TruncateSaturated(height * factor + 0.5);
    }
    if (even) {
        width &= ~1U;
        height &= ~1U;
    }
    return {width, height, frameInfo.parNumerator, frameInfo.parDenominator};
}

} // namespace EditorAlgorithms

} // namespace Zorvan::Proc

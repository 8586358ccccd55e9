#pragma once
// RelativePoint, a point relative to the frame.
#include <cstdint>
#include <utility>

#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// Two doubles, x then y, each meant to lie in 0..1 (x to the right, y down).
class ZORVAN_SETTINGS_EXPORT RelativePoint {
public:
    // The named fixed points; the numbers are the interface: saved projects store them.
    enum Centers : std::uint32_t {
        TopLeft = 0,     // (0, 0)
        TopRight = 1,    // (1, 0)
        BottomLeft = 2,  // (0, 1)
        BottomRight = 3, // (1, 1)
        Center = 4,      // (0.5, 0.5)
    };

    // The point (0.5, 0.5).
    RelativePoint();
    // The named point; a value outside the table gives (0.5, 0.5).
    explicit RelativePoint(Centers center);

    // The named point; a value outside the table leaves the point where it is, clamped to
    // the unit square.
    void SetCenter(Centers center);
    // Stores x and y, each clamped to 0..1 (a not-a-number value is stored as it is).
    void SetCenter(double x, double y);

    // The pair (x, y).
    std::pair<double, double> GetCenter() const;
    // The pixel position (column, row): column = truncate(x * width + 0.5), the truncation
    // saturating at 0 and 0xFFFFFFFF (not-a-number gives 0), then limited from above to
    // width - 1; the row likewise with y and height. With a width (height) of 0 the limit
    // wraps round to 0xFFFFFFFF, so no limit applies.
    std::pair<unsigned int, unsigned int> GetCenter(unsigned int width, unsigned int height) const;

private:
    double x = 0.5;
    double y = 0.5;
};

} // namespace Zorvan::Proc

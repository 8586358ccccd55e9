#pragma once
// CropInfo and CropInfoF, rectangles given by their four edges.
#include <cstdint>
#include <iosfwd>

#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// A rectangle in whole pixels. `right` and `bottom` are one past the last
// column and row; width is right - left and height is bottom - top (unsigned 32-bit,
// wrapping round when right < left or bottom < top). An aggregate:
// CropInfo{left, right, top, bottom}. The `==` compares all four fields exactly.
struct ZORVAN_SETTINGS_EXPORT CropInfo {
    std::uint32_t left = 0;
    std::uint32_t right = 0;
    std::uint32_t top = 0;
    std::uint32_t bottom = 0;

    // Sum of the absolute field differences, each difference taken as a signed 32-bit
    // wrap-around value (left 0 against left 0xFFFFFFFF counts 1). The sum wraps at 2^32.
    std::uint32_t Diff(const CropInfo& other) const;
    // Per axis: if other.left != other.right, left becomes the smaller left and right the
    // larger right; likewise top and bottom when other.top != other.bottom.
    CropInfo& Align(const CropInfo& other);
    // Grows the rectangle to cover the pixel (x, y): left = min(left, x),
    // right = max(right, x + 1), top = min(top, y), bottom = max(bottom, y + 1).
    // x + 1 and y + 1 are unsigned: at 0xFFFFFFFF they wrap round to 0.
    CropInfo& Apart(unsigned int x, unsigned int y);
    // Smaller left and top, larger right and bottom; empty rectangles get no special care.
    CropInfo Union(const CropInfo& other) const;
    // Larger left and top, smaller right and bottom; disjoint rectangles give left > right
    // or top > bottom.
    CropInfo Intersection(const CropInfo& other) const;

    std::uint32_t GetWidth() const { return right - left; }
    std::uint32_t GetHeight() const { return bottom - top; }

    bool operator==(const CropInfo&) const = default;
};

// CropInfo with doubles: the same fields, order and operations.
struct ZORVAN_SETTINGS_EXPORT CropInfoF {
    double left = 0.0;
    double right = 0.0;
    double top = 0.0;
    double bottom = 0.0;

    // Sum of the four absolute field differences.
    double Diff(const CropInfoF& other) const;
    // As CropInfo::Align; "differs" is the exact double `!=`.
    CropInfoF& Align(const CropInfoF& other);
    // As CropInfo::Apart, with the same "+ 1".
    CropInfoF& Apart(double x, double y);
    CropInfoF Union(const CropInfoF& other) const;
    CropInfoF Intersection(const CropInfoF& other) const;

    double GetWidth() const { return right - left; }
    double GetHeight() const { return bottom - top; }

    // Equal when Diff(other) is strictly below 1e-5.
    bool operator==(const CropInfoF& other) const;
};

// Writes "(l:" left ", t:" top ", r:" right ", b:" bottom ") (w:" width ", h:"
// height ")", each of the six numbers with a field width of 4 and a space as the fill
// character. The stream's earlier fill character is restored afterwards.
// Example: CropInfo{1, 2, 3, 4} gives "(l:   1, t:   3, r:   2, b:   4) (w:   1, h:   1)".
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, const CropInfo& rect);
ZORVAN_SETTINGS_EXPORT std::ostream& operator<<(std::ostream& stream, const CropInfoF& rect);

} // namespace Zorvan::Proc

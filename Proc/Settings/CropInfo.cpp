#include "Proc/Settings/CropInfo.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>

namespace Zorvan::Proc {

namespace {

// |a - b| with the difference taken as a signed 32-bit wrap-around value, all in unsigned
// arithmetic: a difference of 2^31 or more is negative as a signed value, and its absolute
// value is 2^32 minus it (0x80000000 stays 0x80000000, as the magnitude of INT32_MIN).
std::uint32_t WrappedAbsDiff(std::uint32_t a, std::uint32_t b)
{
    const std::uint32_t difference = a - b;
    return difference >= 0x80000000U ? 0U - difference : difference;
}

template <typename Rect>
std::ostream& WriteRect(std::ostream& stream, const Rect& rect)
{
    const auto oldFill = stream.fill(' ');
    stream << "("
           << "l:" << std::setw(4) << rect.left << ", t:" << std::setw(4) << rect.top << ", r:" << std::setw(4)
           << rect.right << ", b:" << std::setw(4) << rect.bottom << ") (w:" << std::setw(4) << rect.GetWidth()
           << ", h:" << std::setw(4) << rect.GetHeight() << ")";
    stream.fill(oldFill);
    return stream;
}

// The operations CropInfo and CropInfoF share, written once.
template <typename Rect>
Rect& AlignRect(Rect& rect, const Rect& other)
{
    if (other.left != other.right) {
        rect.left = std::min(rect.left, other.left);
        rect.right = std::max(rect.right, other.right);
    }
    if (other.top != other.bottom) {
        rect.top = std::min(rect.top, other.top);
        rect.bottom = std::max(rect.bottom, other.bottom);
    }
    return rect;
}

// "+ 1" in the field's own type: unsigned for CropInfo (wrapping at 0xFFFFFFFF), double for CropInfoF.
template <typename Rect, typename T>
Rect& ApartRect(Rect& rect, T x, T y)
{
    rect.left = std::min(rect.left, x);
    rect.right = std::max(rect.right, static_cast<T>(x + 1));
    rect.top = std::min(rect.top, y);
    rect.bottom = std::max(rect.bottom, static_cast<T>(y + 1));
    return rect;
}

template <typename Rect>
Rect UnionRect(const Rect& a, const Rect& b)
{
    return Rect{std::min(a.left, b.left), std::max(a.right, b.right), std::min(a.top, b.top),
                std::max(a.bottom, b.bottom)};
}

template <typename Rect>
Rect IntersectionRect(const Rect& a, const Rect& b)
{
    return Rect{std::max(a.left, b.left), std::min(a.right, b.right), std::max(a.top, b.top),
                std::min(a.bottom, b.bottom)};
}

} // namespace

// --- CropInfo ---------------------------------------------------------------------------

std::uint32_t CropInfo::Diff(const CropInfo& other) const
{
    return WrappedAbsDiff(left, other.left) + WrappedAbsDiff(right, other.right) + WrappedAbsDiff(top, other.top) +
           WrappedAbsDiff(bottom, other.bottom);
}

CropInfo& CropInfo::Align(const CropInfo& other)
{
    return AlignRect(*this, other);
}

CropInfo& CropInfo::Apart(unsigned int x, unsigned int y)
{
    return ApartRect<CropInfo, std::uint32_t>(*this, x, y);
}

CropInfo CropInfo::Union(const CropInfo& other) const
{
    return UnionRect(*this, other);
}

CropInfo CropInfo::Intersection(const CropInfo& other) const
{
    return IntersectionRect(*this, other);
}

std::ostream& operator<<(std::ostream& stream, const CropInfo& rect)
{
    return WriteRect(stream, rect);
}

// --- CropInfoF --------------------------------------------------------------------------

double CropInfoF::Diff(const CropInfoF& other) const
{
    return std::abs(left - other.left) + std::abs(right - other.right) + std::abs(top - other.top) +
           std::abs(bottom - other.bottom);
}

CropInfoF& CropInfoF::Align(const CropInfoF& other)
{
    return AlignRect(*this, other);
}

CropInfoF& CropInfoF::Apart(double x, double y)
{
    return ApartRect(*this, x, y);
}

CropInfoF CropInfoF::Union(const CropInfoF& other) const
{
    return UnionRect(*this, other);
}

CropInfoF CropInfoF::Intersection(const CropInfoF& other) const
{
    return IntersectionRect(*this, other);
}

bool CropInfoF::operator==(const CropInfoF& other) const
{
    return Diff(other) < 1e-5;
}

std::ostream& operator<<(std::ostream& stream, const CropInfoF& rect)
{
    return WriteRect(stream, rect);
}

} // namespace Zorvan::Proc

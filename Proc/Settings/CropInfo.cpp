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

} // namespace

// --- CropInfo ---------------------------------------------------------------------------

std::uint32_t CropInfo::Diff(const CropInfo& other) const
{
    return WrappedAbsDiff(left, other.left) + WrappedAbsDiff(right, other.right) + WrappedAbsDiff(top, other.top) +
           WrappedAbsDiff(bottom, other.bottom);
}

CropInfo& CropInfo::Align(const CropInfo& other)
{
    if (other.left != other.right) {
        left = std::min(left, other.left);
        right = std::max(right, other.right);
    }
    if (other.top != other.bottom) {
        top = std::min(top, other.top);
        bottom = std::max(bottom, other.bottom);
    }
    return *this;
}

CropInfo& CropInfo::Apart(unsigned int x, unsigned int y)
{
    left = std::min<std::uint32_t>(left, x);
    right = std::max<std::uint32_t>(right, x + 1U);
    top = std::min<std::uint32_t>(top, y);
    bottom = std::max<std::uint32_t>(bottom, y + 1U);
    return *this;
}

CropInfo CropInfo::Union(const CropInfo& other) const
{
    return CropInfo{std::min(left, other.left), std::max(right, other.right), std::min(top, other.top),
                    std::max(bottom, other.bottom)};
}

CropInfo CropInfo::Intersection(const CropInfo& other) const
{
    return CropInfo{std::max(left, other.left), std::min(right, other.right), std::max(top, other.top),
                    std::min(bottom, other.bottom)};
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
    if (other.left != other.right) {
        left = std::min(left, other.left);
        right = std::max(right, other.right);
    }
    if (other.top != other.bottom) {
        top = std::min(top, other.top);
        bottom = std::max(bottom, other.bottom);
    }
    return *this;
}

CropInfoF& CropInfoF::Apart(double x, double y)
{
    left = std::min(left, x);
    right = std::max(right, x + 1.0);
    top = std::min(top, y);
    bottom = std::max(bottom, y + 1.0);
    return *this;
}

CropInfoF CropInfoF::Union(const CropInfoF& other) const
{
    return CropInfoF{std::min(left, other.left), std::max(right, other.right), std::min(top, other.top),
                     std::max(bottom, other.bottom)};
}

CropInfoF CropInfoF::Intersection(const CropInfoF& other) const
{
    return CropInfoF{std::max(left, other.left), std::min(right, other.right), std::max(top, other.top),
                     std::min(bottom, other.bottom)};
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

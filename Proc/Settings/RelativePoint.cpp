#include "Proc/Settings/RelativePoint.h"

#include <algorithm>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

namespace {

// The point of a table value, or false for a value outside the table.
bool LookUp(RelativePoint::Centers center, double& x, double& y)
{
    switch (center) {
    case RelativePoint::TopLeft:
        x = 0.0;
        y = 0.0;
        return true;
    case RelativePoint::TopRight:
        x = 1.0;
        y = 0.0;
        return true;
    case RelativePoint::BottomLeft:
        x = 0.0;
        y = 1.0;
        return true;
    case RelativePoint::BottomRight:
        x = 1.0;
        y = 1.0;
        return true;
    case RelativePoint::Center:
        x = 0.5;
        y = 0.5;
        return true;
    }
    return false;
}

unsigned int PixelPosition(double relative, unsigned int size)
{
    const unsigned int position = TruncateSaturated(relative * static_cast<double>(size) + 0.5);
    return std::min(position, size - 1U); // size 0: the limit wraps round to the largest value
}

} // namespace

RelativePoint::RelativePoint() = default;

RelativePoint::RelativePoint(Centers center)
{
    LookUp(center, x, y); // outside the table the defaults (0.5, 0.5) stay
}

void RelativePoint::SetCenter(Centers center)
{
    if (!LookUp(center, x, y)) {
        x = Saturate(x, 0.0, 1.0);
        y = Saturate(y, 0.0, 1.0);
    }
}

void RelativePoint::SetCenter(double newX, double newY)
{
    x = Saturate(newX, 0.0, 1.0);
    y = Saturate(newY, 0.0, 1.0);
}

std::pair<double, double> RelativePoint::GetCenter() const
{
    return {x, y};
}

std::pair<unsigned int, unsigned int> RelativePoint::GetCenter(unsigned int width, unsigned int height) const
{
    return {PixelPosition(x, width), PixelPosition(y, height)};
}

} // namespace Zorvan::Proc

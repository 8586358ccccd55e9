#include "Proc/Settings/SettingsEffectSmartBlur.h"

#include <cstdint>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

// a - b in unsigned 32-bit wrap-around: no signed overflow.
std::uint32_t Difference(int a, int b)
{
    return static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b);
}

} // namespace

const std::string SettingsEffectSmartBlur::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_SMARTBLUR";

const std::string& SettingsEffectSmartBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSmartBlur::Clone() const
{
    return std::make_unique<SettingsEffectSmartBlur>(*this);
}

bool SettingsEffectSmartBlur::operator==(const SettingsEffectSmartBlur& other) const
{
    return radius == other.radius && threshold == other.threshold && quality == other.quality && mode == other.mode &&
           Difference(right, left) == Difference(other.right, other.left) &&
           Difference(bottom, top) == Difference(other.bottom, other.top);
}

void SettingsEffectSmartBlur::SetRadius(int value)
{
    radius = value;
}

void SettingsEffectSmartBlur::SetThreshold(int value)
{
    threshold = value;
}

void SettingsEffectSmartBlur::SetRight(int value)
{
    right = value;
}

void SettingsEffectSmartBlur::SetBottom(int value)
{
    bottom = value;
}

void SettingsEffectSmartBlur::SetLeft(int value)
{
    left = value;
}

void SettingsEffectSmartBlur::SetTop(int value)
{
    top = value;
}

void SettingsEffectSmartBlur::SetQuality(int value)
{
    quality = value;
}

void SettingsEffectSmartBlur::SetMode(int value)
{
    mode = value;
}

int SettingsEffectSmartBlur::GetRadius() const
{
    return radius;
}

int SettingsEffectSmartBlur::GetThreshold() const
{
    return threshold;
}

int SettingsEffectSmartBlur::GetRight() const
{
    return right;
}

int SettingsEffectSmartBlur::GetBottom() const
{
    return bottom;
}

int SettingsEffectSmartBlur::GetLeft() const
{
    return left;
}

int SettingsEffectSmartBlur::GetTop() const
{
    return top;
}

int SettingsEffectSmartBlur::GetQuality() const
{
    return quality;
}

int SettingsEffectSmartBlur::GetMode() const
{
    return mode;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectCrop.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectCrop::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_CROP";

SettingsEffectCrop::SettingsEffectCrop(unsigned left, unsigned right, unsigned top, unsigned bottom)
    : left(left)
    , right(right)
    , top(top)
    , bottom(bottom)
{
}

const std::string& SettingsEffectCrop::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectCrop::Clone() const
{
    return std::make_unique<SettingsEffectCrop>(*this);
}

bool SettingsEffectCrop::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectCrop&>(other);
}

bool SettingsEffectCrop::IsEmpty() const
{
    return false;
}

bool SettingsEffectCrop::operator==(const SettingsEffectCrop& other) const
{
    return left == other.left && right == other.right && top == other.top && bottom == other.bottom;
}

std::uint32_t SettingsEffectCrop::GetLeft() const
{
    return left;
}

std::uint32_t SettingsEffectCrop::GetRight() const
{
    return right;
}

std::uint32_t SettingsEffectCrop::GetTop() const
{
    return top;
}

std::uint32_t SettingsEffectCrop::GetBottom() const
{
    return bottom;
}

} // namespace Zorvan::Proc

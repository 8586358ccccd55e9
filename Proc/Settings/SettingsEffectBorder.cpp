#include "Proc/Settings/SettingsEffectBorder.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBorder::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BORDER";

const std::string& SettingsEffectBorder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBorder::Clone() const
{
    return std::make_unique<SettingsEffectBorder>(*this);
}

bool SettingsEffectBorder::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectBorder&>(other);
}

bool SettingsEffectBorder::IsEmpty() const
{
    if (relative != 0) {
        return relativeSizes == CropInfoF{}; // the summed magnitudes below 1e-5
    }
    return sizes == CropInfo{};
}

bool SettingsEffectBorder::operator==(const SettingsEffectBorder& other) const
{
    if (relative != other.relative) {
        return false;
    }
    const bool sameSizes = relative != 0 ? relativeSizes == other.relativeSizes : sizes == other.sizes;
    return sameSizes && color == other.color;
}

void SettingsEffectBorder::SetRelative(std::int32_t value)
{
    relative = value;
}

void SettingsEffectBorder::SetSizes(const CropInfo& value)
{
    sizes = value;
}

void SettingsEffectBorder::SetRelativeSizes(const CropInfoF& value)
{
    relativeSizes = value;
}

void SettingsEffectBorder::SetColor(Color value)
{
    color = value;
}

std::int32_t SettingsEffectBorder::GetRelative() const
{
    return relative;
}

const CropInfo& SettingsEffectBorder::GetSizes() const
{
    return sizes;
}

const CropInfoF& SettingsEffectBorder::GetRelativeSizes() const
{
    return relativeSizes;
}

Color SettingsEffectBorder::GetColor() const
{
    return color;
}

} // namespace Zorvan::Proc

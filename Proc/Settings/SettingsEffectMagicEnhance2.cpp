#include "Proc/Settings/SettingsEffectMagicEnhance2.h"

#include <algorithm>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMagicEnhance2::CLASS_ID ZORVAN_INIT_STRINGS = "EffectMagicEnhance";

const std::string& SettingsEffectMagicEnhance2::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMagicEnhance2::Clone() const
{
    return std::make_unique<SettingsEffectMagicEnhance2>(*this);
}

bool SettingsEffectMagicEnhance2::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectMagicEnhance2&>(other);
}

bool SettingsEffectMagicEnhance2::IsEmpty() const
{
    return false;
}

void SettingsEffectMagicEnhance2::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Stored straight into the fields, past the setters' clamp: saved presets load as written.
    const auto map = GetOptionsMap(options, {"b", "w"});
    MapForm::Read(map, "b", blackSaturatedPixels);
    MapForm::Read(map, "w", whiteSaturatedPixels);
}

bool SettingsEffectMagicEnhance2::operator==(const SettingsEffectMagicEnhance2& other) const
{
    return whiteSaturatedPixels == other.whiteSaturatedPixels && blackSaturatedPixels == other.blackSaturatedPixels;
}

void SettingsEffectMagicEnhance2::SetWhiteSaturatedPixels(float value)
{
    // std::max(0, NaN) returns its first argument, 0: a NaN becomes 0.
    whiteSaturatedPixels = std::min(std::max(0.0F, value), 20.0F);
}

void SettingsEffectMagicEnhance2::SetBlackSaturatedPixels(float value)
{
    // std::max(0, NaN) returns its first argument, 0: a NaN becomes 0.
    blackSaturatedPixels = std::min(std::max(0.0F, value), 20.0F);
}

float SettingsEffectMagicEnhance2::GetWhiteSaturatedPixels() const
{
    return whiteSaturatedPixels;
}

float SettingsEffectMagicEnhance2::GetBlackSaturatedPixels() const
{
    return blackSaturatedPixels;
}

} // namespace Zorvan::Proc

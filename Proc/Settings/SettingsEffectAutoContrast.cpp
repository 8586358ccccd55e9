#include "Proc/Settings/SettingsEffectAutoContrast.h"

#include <algorithm>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAutoContrast::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAutoContrast";

const std::string& SettingsEffectAutoContrast::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAutoContrast::Clone() const
{
    return std::make_unique<SettingsEffectAutoContrast>(*this);
}

bool SettingsEffectAutoContrast::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectAutoContrast&>(other);
}

void SettingsEffectAutoContrast::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Stored straight into the fields, past the setters' clamp: saved presets load as written.
    const auto map = GetOptionsMap(options, {"b", "w", "a"});
    MapForm::Read(map, "b", blackSaturatedPixels);
    MapForm::Read(map, "w", whiteSaturatedPixels);
    if (const auto alpha = MapForm::Find<double>(map, "a")) {
        alphaIsDisabled = *alpha != 0.0;
    }
}

bool SettingsEffectAutoContrast::operator==(const SettingsEffectAutoContrast& other) const
{
    return whiteSaturatedPixels == other.whiteSaturatedPixels && blackSaturatedPixels == other.blackSaturatedPixels;
}

void SettingsEffectAutoContrast::SetWhiteSaturatedPixels(float value)
{
    // std::max(0, NaN) returns its first argument, 0: a NaN becomes 0.
    whiteSaturatedPixels = std::min(std::max(0.0F, value), 20.0F);
}

void SettingsEffectAutoContrast::SetBlackSaturatedPixels(float value)
{
    // std::max(0, NaN) returns its first argument, 0: a NaN becomes 0.
    blackSaturatedPixels = std::min(std::max(0.0F, value), 20.0F);
}

void SettingsEffectAutoContrast::SetAlphaIsDisabled(bool value)
{
    alphaIsDisabled = value;
}

float SettingsEffectAutoContrast::GetWhiteSaturatedPixels() const
{
    return whiteSaturatedPixels;
}

float SettingsEffectAutoContrast::GetBlackSaturatedPixels() const
{
    return blackSaturatedPixels;
}

bool SettingsEffectAutoContrast::GetAlphaIsDisabled() const
{
    return alphaIsDisabled;
}

} // namespace Zorvan::Proc

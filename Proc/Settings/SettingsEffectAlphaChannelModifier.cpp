#include "Proc/Settings/SettingsEffectAlphaChannelModifier.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAlphaChannelModifier::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAlphaChannelModifier";

const std::string& SettingsEffectAlphaChannelModifier::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAlphaChannelModifier::Clone() const
{
    return std::make_unique<SettingsEffectAlphaChannelModifier>(*this);
}

void SettingsEffectAlphaChannelModifier::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"power_scale", "additional_multiplier"});
    if (const std::string* text = MapForm::FindText(map, "power_scale")) {
        // Stored before it is checked: a refused power stays in the record, as the engine has
        // always found it after such a failure.
        powerScale = std::stod(*text);
        if (powerScale < 0.0) {
            ThrowSettings("Invalid power_scale parameter. Must be greater or equal zero.");
        }
    }
    MapForm::Read(map, "additional_multiplier", additionalMultiplier);
}

void SettingsEffectAlphaChannelModifier::SetPowerScale(double value)
{
    powerScale = value;
}

void SettingsEffectAlphaChannelModifier::SetAdditionalMultiplier(double value)
{
    additionalMultiplier = value;
}

double SettingsEffectAlphaChannelModifier::GetPowerScale() const
{
    return powerScale;
}

double SettingsEffectAlphaChannelModifier::GetAdditionalMultiplier() const
{
    return additionalMultiplier;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectRetroColors.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRetroColors::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Retro_Colors$$";

const std::string& SettingsEffectRetroColors::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRetroColors::Clone() const
{
    return std::make_unique<SettingsEffectRetroColors>(*this);
}

bool SettingsEffectRetroColors::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectRetroColors&>(other);
}

void SettingsEffectRetroColors::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"type", "intensity"});
    MapForm::Read(map, "type", type);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectRetroColors::operator==(const SettingsEffectRetroColors& other) const
{
    return type == other.type && intensity == other.intensity;
}

void SettingsEffectRetroColors::SetType(int value)
{
    type = value;
}

void SettingsEffectRetroColors::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectRetroColors::GetType() const
{
    return type;
}

float SettingsEffectRetroColors::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

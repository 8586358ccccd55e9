#include "Proc/Settings/SettingsEffectLensFlare.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLensFlare::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLensFlare";

const std::string& SettingsEffectLensFlare::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLensFlare::Clone() const
{
    return std::make_unique<SettingsEffectLensFlare>(*this);
}

void SettingsEffectLensFlare::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"preset", "intensity"});
    MapForm::Read(map, "preset", preset);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectLensFlare::SetPreset(int value)
{
    preset = value;
}

void SettingsEffectLensFlare::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectLensFlare::GetPreset() const
{
    return preset;
}

float SettingsEffectLensFlare::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

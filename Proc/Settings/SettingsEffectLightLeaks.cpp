#include "Proc/Settings/SettingsEffectLightLeaks.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLightLeaks::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLightLeaks";

const std::string& SettingsEffectLightLeaks::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLightLeaks::Clone() const
{
    return std::make_unique<SettingsEffectLightLeaks>(*this);
}

bool SettingsEffectLightLeaks::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectLightLeaks&>(other);
}

void SettingsEffectLightLeaks::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"preset", "intensity"});
    MapForm::Read(map, "preset", preset);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectLightLeaks::operator==(const SettingsEffectLightLeaks& other) const
{
    return preset == other.preset && intensity == other.intensity;
}

void SettingsEffectLightLeaks::SetPreset(int value)
{
    preset = value;
}

void SettingsEffectLightLeaks::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectLightLeaks::GetPreset() const
{
    return preset;
}

float SettingsEffectLightLeaks::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectChromaticAberration.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectChromaticAberration::CLASS_ID ZORVAN_INIT_STRINGS = "EffectChromaticAberration";

const std::string& SettingsEffectChromaticAberration::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChromaticAberration::Clone() const
{
    return std::make_unique<SettingsEffectChromaticAberration>(*this);
}

bool SettingsEffectChromaticAberration::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectChromaticAberration&>(other);
}

void SettingsEffectChromaticAberration::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity"});
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectChromaticAberration::operator==(const SettingsEffectChromaticAberration& other) const
{
    return intensity == other.intensity;
}

void SettingsEffectChromaticAberration::SetIntensity(float value)
{
    intensity = value;
}

float SettingsEffectChromaticAberration::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

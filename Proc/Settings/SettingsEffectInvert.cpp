#include "Proc/Settings/SettingsEffectInvert.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectInvert::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectInvert$$";

const std::string& SettingsEffectInvert::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectInvert::Clone() const
{
    return std::make_unique<SettingsEffectInvert>(*this);
}

bool SettingsEffectInvert::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectInvert&>(other);
}

void SettingsEffectInvert::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity"});
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectInvert::operator==(const SettingsEffectInvert& other) const
{
    return intensity == other.intensity;
}

void SettingsEffectInvert::SetIntensity(float value)
{
    intensity = value;
}

float SettingsEffectInvert::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

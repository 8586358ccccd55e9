#include "Proc/Settings/SettingsEffectFishEye.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFishEye::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFishEye";

const std::string& SettingsEffectFishEye::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFishEye::Clone() const
{
    return std::make_unique<SettingsEffectFishEye>(*this);
}

bool SettingsEffectFishEye::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectFishEye&>(other);
}

void SettingsEffectFishEye::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"deviation", "intensity"});
    MapForm::Read(map, "deviation", deviation);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectFishEye::operator==(const SettingsEffectFishEye& other) const
{
    return deviation == other.deviation && intensity == other.intensity;
}

void SettingsEffectFishEye::SetDeviation(double value)
{
    deviation = value;
}

void SettingsEffectFishEye::SetIntensity(float value)
{
    intensity = value;
}

double SettingsEffectFishEye::GetDeviation() const
{
    return deviation;
}

float SettingsEffectFishEye::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

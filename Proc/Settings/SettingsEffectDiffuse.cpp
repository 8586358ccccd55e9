#include "Proc/Settings/SettingsEffectDiffuse.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDiffuse::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectDiffuse$$";

const std::string& SettingsEffectDiffuse::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDiffuse::Clone() const
{
    return std::make_unique<SettingsEffectDiffuse>(*this);
}

void SettingsEffectDiffuse::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"level", "probability", "intensity"});
    MapForm::Read(map, "level", level);
    MapForm::Read(map, "probability", probability);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectDiffuse::SetParams(double newLevel, double newProbability)
{
    level = newLevel;
    probability = newProbability;
}

void SettingsEffectDiffuse::SetIntensity(float value)
{
    intensity = value;
}

double SettingsEffectDiffuse::GetLevel() const
{
    return level;
}

double SettingsEffectDiffuse::GetProbability() const
{
    return probability;
}

float SettingsEffectDiffuse::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

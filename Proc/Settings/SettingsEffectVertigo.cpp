#include "Proc/Settings/SettingsEffectVertigo.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVertigo::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectVertigo$$";

const std::string& SettingsEffectVertigo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVertigo::Clone() const
{
    return std::make_unique<SettingsEffectVertigo>(*this);
}

void SettingsEffectVertigo::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"scale", "speed", "intensity"});
    MapForm::Read(map, "scale", scale);
    MapForm::Read(map, "speed", speed);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectVertigo::SetParams(double newScale, double newSpeed)
{
    scale = newScale;
    speed = newSpeed;
}

void SettingsEffectVertigo::SetIntensity(double value)
{
    intensity = value;
}

double SettingsEffectVertigo::GetScale() const
{
    return scale;
}

double SettingsEffectVertigo::GetSpeed() const
{
    return speed;
}

double SettingsEffectVertigo::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

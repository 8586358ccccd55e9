#include "Proc/Settings/SettingsEffectVHS.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVHS::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectVHS$$";

const std::string& SettingsEffectVHS::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVHS::Clone() const
{
    return std::make_unique<SettingsEffectVHS>(*this);
}

void SettingsEffectVHS::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"speed", "relief", "smoothness", "shift", "intensity"});
    MapForm::Read(map, "speed", speed);
    MapForm::Read(map, "relief", relief);
    MapForm::Read(map, "smoothness", smoothness);
    MapForm::Read(map, "shift", shift);
    MapForm::Read(map, "intensity", intensity); // straight into the field, no floor
}

void SettingsEffectVHS::SetParams(double newSpeed, double newShift, double newSmoothness, double newRelief)
{
    speed = newSpeed;
    shift = newShift;
    smoothness = newSmoothness;
    relief = newRelief;
}

void SettingsEffectVHS::SetDrawBorder(bool value)
{
    drawBorder = value;
}

void SettingsEffectVHS::SetIntensity(float value)
{
    constexpr float floor = 0.000001F; // bits 0x358637BD
    intensity = value < floor ? floor : value;
}

double SettingsEffectVHS::GetSpeed() const
{
    return speed;
}

double SettingsEffectVHS::GetShift() const
{
    return shift;
}

double SettingsEffectVHS::GetSmoothness() const
{
    return smoothness;
}

double SettingsEffectVHS::GetRelief() const
{
    return relief;
}

bool SettingsEffectVHS::GetDrawBorder() const
{
    return drawBorder;
}

float SettingsEffectVHS::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

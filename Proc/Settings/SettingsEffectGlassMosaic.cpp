#include "Proc/Settings/SettingsEffectGlassMosaic.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlassMosaic::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectGlassMosaic$$";

const std::string& SettingsEffectGlassMosaic::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlassMosaic::Clone() const
{
    return std::make_unique<SettingsEffectGlassMosaic>(*this);
}

void SettingsEffectGlassMosaic::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"angle", "curve", "repeatsh", "repeatsv", "intensity"});
    MapForm::Read(map, "angle", angle);
    MapForm::Read(map, "curve", curve);
    MapForm::Read(map, "repeatsh", repeatsh);
    MapForm::Read(map, "repeatsv", repeatsv);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectGlassMosaic::SetParams(double newAngle, double newCurve, double newRepeatsh, double newRepeatsv)
{
    angle = newAngle;
    curve = newCurve;
    repeatsh = newRepeatsh;
    repeatsv = newRepeatsv;
}

void SettingsEffectGlassMosaic::SetIntensity(float value)
{
    intensity = value;
}

double SettingsEffectGlassMosaic::GetAngle() const
{
    return angle;
}

double SettingsEffectGlassMosaic::GetCurve() const
{
    return std::fma(curve - 0.5, static_cast<double>(intensity), 0.5);
}

double SettingsEffectGlassMosaic::GetRepeatsh() const
{
    return repeatsh;
}

double SettingsEffectGlassMosaic::GetRepeatsv() const
{
    return repeatsv;
}

float SettingsEffectGlassMosaic::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

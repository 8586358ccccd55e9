#include "Proc/Settings/SettingsEffectTwirl.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTwirl::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectTwirl$$";

const std::string& SettingsEffectTwirl::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTwirl::Clone() const
{
    return std::make_unique<SettingsEffectTwirl>(*this);
}

void SettingsEffectTwirl::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"rt0", "vr", "tt0", "vt", "intensity"});
    MapForm::Read(map, "rt0", rt0);
    MapForm::Read(map, "vr", vr);
    MapForm::Read(map, "tt0", tt0);
    MapForm::Read(map, "vt", vt);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectTwirl::SetParams(double newRt0, double newVr, double newTt0, double newVt)
{
    rt0 = newRt0;
    vr = newVr;
    tt0 = newTt0;
    vt = newVt;
}

void SettingsEffectTwirl::SetIntensity(float value)
{
    intensity = value;
}

double SettingsEffectTwirl::GetRt0() const
{
    return rt0;
}

double SettingsEffectTwirl::GetVr() const
{
    return vr;
}

double SettingsEffectTwirl::GetTt0() const
{
    return tt0;
}

double SettingsEffectTwirl::GetVt() const
{
    return vt;
}

float SettingsEffectTwirl::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

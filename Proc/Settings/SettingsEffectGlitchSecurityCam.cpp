#include "Proc/Settings/SettingsEffectGlitchSecurityCam.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlitchSecurityCam::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGlitchSecurityCam";

const std::string& SettingsEffectGlitchSecurityCam::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlitchSecurityCam::Clone() const
{
    return std::make_unique<SettingsEffectGlitchSecurityCam>(*this);
}

bool SettingsEffectGlitchSecurityCam::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGlitchSecurityCam&>(other);
}

void SettingsEffectGlitchSecurityCam::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The values go through the setters, so their checks apply.
    const auto map = GetOptionsMap(options, {"intensity", "randDist", "constDist"});
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "randDist")) {
        SetRandDistortion(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "constDist")) {
        SetConstDistortion(*value);
    }
}

bool SettingsEffectGlitchSecurityCam::operator==(const SettingsEffectGlitchSecurityCam& other) const
{
    return intensity == other.intensity && randDistortion == other.randDistortion &&
           constDistortion == other.constDistortion;
}

void SettingsEffectGlitchSecurityCam::SetIntensity(float value)
{
    if (value < 0.0F) {
        ThrowSettings("Invalid intensity value. Must be greater or equal 0.0");
    }
    intensity = value;
}

void SettingsEffectGlitchSecurityCam::SetRandDistortion(float value)
{
    if (!(value >= 0.0F && value <= 3.0F)) {
        ThrowSettings("Invalid rand distortion value. Must be in the interval [0.0, 3.0]");
    }
    randDistortion = value;
}

void SettingsEffectGlitchSecurityCam::SetConstDistortion(float value)
{
    if (!(value >= 0.0F && value <= 0.5F)) {
        ThrowSettings("Invalid const distortion value. Must be in the interval [0.0, 0.5]");
    }
    constDistortion = value;
}

float SettingsEffectGlitchSecurityCam::GetIntensity() const
{
    return intensity;
}

float SettingsEffectGlitchSecurityCam::GetRandDistortion() const
{
    return randDistortion;
}

float SettingsEffectGlitchSecurityCam::GetConstDistortion() const
{
    return constDistortion;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectGlitchMpeg.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlitchMpeg::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGlitchMpeg";

const std::string& SettingsEffectGlitchMpeg::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlitchMpeg::Clone() const
{
    return std::make_unique<SettingsEffectGlitchMpeg>(*this);
}

bool SettingsEffectGlitchMpeg::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGlitchMpeg&>(other);
}

bool SettingsEffectGlitchMpeg::IsEmpty() const
{
    return NearZero(intensity);
}

void SettingsEffectGlitchMpeg::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The value goes through the setter, so its check applies.
    const auto map = GetOptionsMap(options, {"intensity"});
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
}

bool SettingsEffectGlitchMpeg::operator==(const SettingsEffectGlitchMpeg& other) const
{
    return intensity == other.intensity;
}

void SettingsEffectGlitchMpeg::SetIntensity(float value)
{
    if (value < 0.0F) {
        ThrowSettings("Invalid intensity value. Must be greater or equal 0.0");
    }
    intensity = value;
}

float SettingsEffectGlitchMpeg::GetIntensity() const
{
    return intensity;
}

void SettingsEffectGlitchMpeg::SetPrivateParameters(bool first, bool second, bool third)
{
    privateFirst = first;
    privateSecond = second;
    privateThird = third;
}

std::array<bool, 3> SettingsEffectGlitchMpeg::GetPrivateParameters() const
{
    return {privateFirst, privateSecond, privateThird};
}

} // namespace Zorvan::Proc

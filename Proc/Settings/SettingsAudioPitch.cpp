#include "Proc/Settings/SettingsAudioPitch.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioPitch::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioPitch";

const std::string& SettingsAudioPitch::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioPitch::Clone() const
{
    return std::make_unique<SettingsAudioPitch>(*this);
}

void SettingsAudioPitch::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity", "pitch"});
    if (const auto value = MapForm::Find<double>(map, "pitch")) {
        SetPitch(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
}

void SettingsAudioPitch::SetPitch(double value)
{
    if (value < 0.5 || value > 2.0) {
        ThrowSettings("Invalid pitch");
    }
    pitch = value;
}

void SettingsAudioPitch::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

double SettingsAudioPitch::GetPitch() const
{
    return pitch;
}

float SettingsAudioPitch::GetIntensity() const
{
    return intensity;
}

double SettingsAudioPitch::CalculatePitch() const
{
    // One rounding for the multiply-add, written out so that every compiler and target gives the
    // factor the sound engine was tuned with, whatever its contraction settings.
    return std::fma(pitch - 1.0, static_cast<double>(intensity), 1.0);
}

} // namespace Zorvan::Proc

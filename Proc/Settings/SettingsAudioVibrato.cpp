#include "Proc/Settings/SettingsAudioVibrato.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioVibrato::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioVibrato";

const std::string& SettingsAudioVibrato::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioVibrato::Clone() const
{
    return std::make_unique<SettingsAudioVibrato>(*this);
}

bool SettingsAudioVibrato::IsEqualTo(const Settings& other) const
{
    const auto& o = dynamic_cast<const SettingsAudioVibrato&>(other);
    return frequency == o.frequency && intensity == o.intensity;
}

void SettingsAudioVibrato::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Built once, on the first call, under the language's initialisation guard.
    static const std::vector<std::string> keys = {"frequency", "intensity"};
    const auto map = GetOptionsMap(options, keys);
    if (const auto value = MapForm::Find<float>(map, "frequency")) {
        SetFrequency(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
}

void SettingsAudioVibrato::SetFrequency(float value)
{
    // Fails only when the value compares outside its bounds: a not-a-number passes.
    if (value < 0.1F || value > 20000.0F) {
        ThrowEffect("Frequency should be in range from 0.1f to 20000.f");
    }
    frequency = value;
}

void SettingsAudioVibrato::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

float SettingsAudioVibrato::GetFrequency() const
{
    return frequency;
}

float SettingsAudioVibrato::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsAudioReverb.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioReverb::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioReverb";

const std::string& SettingsAudioReverb::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioReverb::Clone() const
{
    return std::make_unique<SettingsAudioReverb>(*this);
}

void SettingsAudioReverb::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity"});
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
}

void SettingsAudioReverb::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Invalid intensity!");
    }
    intensity = value;
}

float SettingsAudioReverb::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsAudioRobot.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioRobot::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioRobot";

const std::string& SettingsAudioRobot::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioRobot::Clone() const
{
    return std::make_unique<SettingsAudioRobot>(*this);
}

void SettingsAudioRobot::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    pitch.Deserialize(options);
    const auto map = GetOptionsMap(options, {"level", "intensity"});
    if (const auto value = MapForm::Find<double>(map, "level")) {
        SetLevel(*value);
    }
    // One intensity drives both the voice and its pitch shift.
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
        pitch.SetIntensity(*value);
    }
}

bool SettingsAudioRobot::operator==(const SettingsAudioRobot& other) const
{
    return pitch.GetPitch() == other.pitch.GetPitch() && pitch.GetIntensity() == other.pitch.GetIntensity() &&
           NearlyEqual(level, other.level) && NearlyEqual(intensity, other.intensity);
}

void SettingsAudioRobot::SetLevel(double value)
{
    if (value < 0.0 || value > 1.0) {
        ThrowSettings("Invalid level");
    }
    level = value;
}

void SettingsAudioRobot::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

void SettingsAudioRobot::SetPitch(const SettingsAudioPitch& value)
{
    pitch = value;
}

const SettingsAudioPitch& SettingsAudioRobot::GetPitch() const
{
    return pitch;
}

double SettingsAudioRobot::GetLevel() const
{
    return level;
}

float SettingsAudioRobot::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsAudioNoiseGate.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioNoiseGate::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioNoiseGate";

const std::string& SettingsAudioNoiseGate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioNoiseGate::Clone() const
{
    return std::make_unique<SettingsAudioNoiseGate>(*this);
}

bool SettingsAudioNoiseGate::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsAudioNoiseGate&>(other);
}

void SettingsAudioNoiseGate::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"threshold", "attack", "decay", "soft_knee", "intensity"});
    MapForm::Read(map, "threshold", threshold);
    MapForm::Read(map, "attack", attack);
    MapForm::Read(map, "decay", decay);
    MapForm::Read(map, "soft_knee", softKnee);
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
}

bool SettingsAudioNoiseGate::operator==(const SettingsAudioNoiseGate& other) const
{
    return threshold == other.threshold && attack == other.attack && decay == other.decay &&
           softKnee == other.softKnee && intensity == other.intensity;
}

void SettingsAudioNoiseGate::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

void SettingsAudioNoiseGate::SetThreshold(double value)
{
    threshold = value;
}

void SettingsAudioNoiseGate::SetAttack(double value)
{
    attack = value;
}

void SettingsAudioNoiseGate::SetDecay(double value)
{
    decay = value;
}

void SettingsAudioNoiseGate::SetSoftKnee(double value)
{
    softKnee = value;
}

double SettingsAudioNoiseGate::GetThreshold() const
{
    return threshold;
}

double SettingsAudioNoiseGate::GetAttack() const
{
    return attack;
}

double SettingsAudioNoiseGate::GetDecay() const
{
    return decay;
}

double SettingsAudioNoiseGate::GetSoftKnee() const
{
    return softKnee;
}

float SettingsAudioNoiseGate::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

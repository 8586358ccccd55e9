#include "Proc/Settings/SettingsAudioChorus.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioChorus::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioChorus";

bool SettingsAudioChorus::Voice::IsOK() const
{
    return delay >= 1 && delay <= 89999 && decay > 0.0 && decay <= 1.0 && speed > 0.0 && speed <= 9.9 && depth > 0.0 &&
           depth <= 9.9;
}

bool SettingsAudioChorus::Voice::operator==(const Voice& other) const
{
    return delay == other.delay && NearlyEqual(decay, other.decay) && NearlyEqual(speed, other.speed) &&
           NearlyEqual(depth, other.depth);
}

const std::string& SettingsAudioChorus::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioChorus::Clone() const
{
    return std::make_unique<SettingsAudioChorus>(*this);
}

void SettingsAudioChorus::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // One voice only; the voices held before are replaced.
    const std::vector<std::string> keys = {"intensity", "delay", "decay", "speed", "depth", "gain_in", "gain_out"};
    const auto map = GetOptionsMap(options, keys);
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    Voice voice;
    voice.delay = MapForm::Find<int>(map, "delay").value_or(0);
    voice.decay = MapForm::Find<double>(map, "decay").value_or(0.0);
    voice.speed = MapForm::Find<double>(map, "speed").value_or(0.0);
    voice.depth = MapForm::Find<double>(map, "depth").value_or(0.0);
    const double in = MapForm::Find<double>(map, "gain_in").value_or(1.0);
    const double out = MapForm::Find<double>(map, "gain_out").value_or(1.0);
    SetVoices({voice});
    SetGainInOut(in, out);
}

bool SettingsAudioChorus::operator==(const SettingsAudioChorus& other) const
{
    return voices == other.voices && NearlyEqual(gainIn, other.gainIn) && NearlyEqual(gainOut, other.gainOut) &&
           NearlyEqual(intensity, other.intensity);
}

void SettingsAudioChorus::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

void SettingsAudioChorus::SetVoices(const std::vector<Voice>& value)
{
    for (const Voice& voice : value) {
        if (!voice.IsOK()) {
            ThrowSettings("Invalid Voice");
        }
    }
    voices = value;
}

void SettingsAudioChorus::SetGainInOut(double in, double out)
{
    if (!(in > 0.0 && out > 0.0)) {
        ThrowSettings("Invalid gain parameters");
    }
    gainIn = in;
    gainOut = out;
}

const std::vector<SettingsAudioChorus::Voice>& SettingsAudioChorus::GetVoices() const
{
    return voices;
}

double SettingsAudioChorus::GetGainIn() const
{
    return gainIn;
}

double SettingsAudioChorus::GetGainOut() const
{
    return gainOut;
}

float SettingsAudioChorus::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsAudioRadio.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAudioRadio::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioRadio";

const std::string& SettingsAudioRadio::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioRadio::Clone() const
{
    return std::make_unique<SettingsAudioRadio>(*this);
}

void SettingsAudioRadio::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"crackle_precision", "noise_level", "intensity"});
    if (const auto value = MapForm::Find<unsigned long long>(map, "crackle_precision")) {
        // Only the low 32 bits count, so 4294967296 reads as 0 and is refused.
        SetCracklePrecision(static_cast<std::uint32_t>(*value));
    }
    if (const auto value = MapForm::Find<double>(map, "noise_level")) {
        SetNoiseLevel(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    // The embedded equalizer is rebuilt from the same string each time, not updated: saved
    // projects expect its bands replaced and its intensity back at 1 when the key is absent.
    SettingsAudioEqualizer fresh;
    fresh.SetMultiband({});
    fresh.SetIntensity(1.0F);
    fresh.Deserialize(options);
    equalizer = fresh;
}

bool SettingsAudioRadio::operator==(const SettingsAudioRadio& other) const
{
    return equalizer.GetMultiband() == other.equalizer.GetMultiband() &&
           equalizer.GetIntensity() == other.equalizer.GetIntensity() && cracklePrecision == other.cracklePrecision &&
           NearlyEqual(noiseLevel, other.noiseLevel) && NearlyEqual(intensity, other.intensity);
}

void SettingsAudioRadio::SetNoiseLevel(double value)
{
    if (value < 0.0 || value > 1.0) {
        ThrowSettings("Invalid noise level");
    }
    noiseLevel = value;
}

void SettingsAudioRadio::SetCracklePrecision(unsigned int value)
{
    if (value < 1U) {
        ThrowSettings("Invalid crackle precision");
    }
    cracklePrecision = value;
}

void SettingsAudioRadio::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowEffect("Intensity should be in range from 0.f to 1.f");
    }
    intensity = value;
}

void SettingsAudioRadio::SetEqualizer(const SettingsAudioEqualizer& value)
{
    equalizer = value;
}

const SettingsAudioEqualizer& SettingsAudioRadio::GetEqualizer() const
{
    return equalizer;
}

std::uint32_t SettingsAudioRadio::GetCracklePrecision() const
{
    return cracklePrecision;
}

double SettingsAudioRadio::GetNoiseLevel() const
{
    return noiseLevel;
}

float SettingsAudioRadio::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

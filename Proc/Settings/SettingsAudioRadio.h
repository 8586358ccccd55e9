#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsAudioEqualizer.h"

namespace Zorvan::Proc {

// The old-radio sound: an equalizer held by value, crackle and noise. Keeps the base IsEqualTo
// (it throws) although it has an operator==; its option string also fills the equalizer.
class ZORVAN_SETTINGS_EXPORT SettingsAudioRadio : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "crackle_precision", "noise_level", "intensity": crackle_precision (std::stoull, cut
    // to its low 32 bits) through SetCracklePrecision, noise_level (std::stod) through
    // SetNoiseLevel, intensity (std::stof) through SetIntensity. Then a fresh equalizer (no
    // band, intensity 1) reads the whole string and its bands and intensity replace the
    // embedded ones: "intensity" reaches both, and without it the equalizer's falls back to 1.
    void Deserialize(const std::string& options) override;

    // The equalizers' bands pairwise equal in order and their intensities exactly, then
    // cracklePrecision exactly, noiseLevel and the float intensity `nearly equal`.
    bool operator==(const SettingsAudioRadio& other) const;

    // 0 to 1 inclusive, else SettingsException "Invalid noise level"; a not-a-number passes
    // and is stored.
    void SetNoiseLevel(double value);
    // 1 or more, else SettingsException "Invalid crackle precision".
    void SetCracklePrecision(unsigned int value);
    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f"; a
    // not-a-number passes and is stored.
    void SetIntensity(float value);
    // Stored as given; the equalizer checked its own values as they were set.
    void SetEqualizer(const SettingsAudioEqualizer& value);

    const SettingsAudioEqualizer& GetEqualizer() const;
    std::uint32_t GetCracklePrecision() const;
    double GetNoiseLevel() const;
    float GetIntensity() const;

private:
    SettingsAudioEqualizer equalizer;    // no band, intensity 1: what an option string starts from
    std::uint32_t cracklePrecision = 1U; // the least valid value
    double noiseLevel = 0.0;             // no noise
    float intensity = 0.0F;              // dry signal only
};

} // namespace Zorvan::Proc

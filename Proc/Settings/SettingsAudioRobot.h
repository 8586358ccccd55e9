#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsAudioPitch.h"

namespace Zorvan::Proc {

// The robot voice: a pitch shift held by value, a modulation level and an intensity. Keeps the
// base IsEqualTo (it throws) and IsEmpty (never empty), although it has an operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioRobot : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // The embedded pitch reads the whole string first (the key "pitch" is its own); then keys
    // "level" (std::stod) through SetLevel and "intensity" (std::stof) through SetIntensity and
    // then through the embedded pitch's SetIntensity.
    void Deserialize(const std::string& options) override;

    // The embedded pitch's pitch and intensity exactly, level `nearly equal`, the float
    // intensity `nearly equal`.
    bool operator==(const SettingsAudioRobot& other) const;

    // 0 to 1 inclusive, else SettingsException "Invalid level"; a not-a-number passes and is stored.
    void SetLevel(double value);
    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f";
    // a not-a-number passes and is stored. The embedded pitch keeps its own intensity.
    void SetIntensity(float value);
    // Replaces the embedded pitch; its own setters have already checked it.
    void SetPitch(const SettingsAudioPitch& value);

    const SettingsAudioPitch& GetPitch() const;
    double GetLevel() const;
    float GetIntensity() const;

private:
    SettingsAudioPitch pitch;
    double level = 0.0;     // neutral default: no modulation
    float intensity = 0.0F; // neutral default: dry signal only
};

} // namespace Zorvan::Proc

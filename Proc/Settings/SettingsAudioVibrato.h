#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The vibrato, frequency and intensity. IsEqualTo compares both exactly; there is no
// operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioVibrato : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Checked cast (std::bad_cast for a foreign class), then both fields exactly.
    bool IsEqualTo(const Settings& other) const override;
    // Keys "frequency", "intensity" (std::stof), through SetFrequency and SetIntensity in this
    // order. The key list is a function-local static, built on the first call.
    void Deserialize(const std::string& options) override;

    // Inclusive checks, EffectException; a not-a-number compares outside no bound, passes and
    // is stored. A failed setter leaves its field.
    // 0.1 to 20000, "Frequency should be in range from 0.1f to 20000.f".
    void SetFrequency(float value);
    // 0 to 1, "Intensity should be in range from 0.f to 1.f".
    void SetIntensity(float value);

    float GetFrequency() const;
    float GetIntensity() const;

private:
    // Neutral defaults: valid values and intensity 0, so nothing changes.
    float frequency = 5.0F; // Hz, a valid value; no effect at intensity 0
    float intensity = 0.0F; // dry signal only
};

} // namespace Zorvan::Proc

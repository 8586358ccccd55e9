#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The pitch shift: a factor and how much of it is applied. Also embedded, by value, in the
// robot voice. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty); has no operator==.
class ZORVAN_SETTINGS_EXPORT SettingsAudioPitch : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "intensity" and "pitch": "pitch" (std::stod) through SetPitch first, then
    // "intensity" (std::stof) through SetIntensity.
    void Deserialize(const std::string& options) override;

    // 0.5 to 2 inclusive, else SettingsException "Invalid pitch"; a not-a-number compares
    // outside no bound, passes and is stored.
    void SetPitch(double value);
    // 0 to 1 inclusive, else EffectException "Intensity should be in range from 0.f to 1.f";
    // a not-a-number passes and is stored.
    void SetIntensity(float value);

    double GetPitch() const;
    float GetIntensity() const;

    // The factor the stage applies: (pitch - 1) * intensity + 1, the intensity widened to double
    // and the multiply-add rounded once, so intensity 0 gives 1 and intensity 1 gives pitch.
    double CalculatePitch() const;

private:
    double pitch = 1.0;     // neutral default: no shift
    float intensity = 0.0F; // neutral default: dry signal only
};

} // namespace Zorvan::Proc

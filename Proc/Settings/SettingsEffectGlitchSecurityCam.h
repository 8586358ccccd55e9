#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Security-camera glitch. Overrides IsEqualTo (all three fields, exact) and Deserialize
// (through the checking setters); keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGlitchSecurityCam : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // All three fields exact, in field order.
    bool operator==(const SettingsEffectGlitchSecurityCam& other) const;

    // Each throws SettingsException and leaves its field when the value is refused.
    // Intensity: refused below 0.0 (NaN is not below and passes).
    void SetIntensity(float intensity);
    // Accepted in 0.0..3.0 inclusive only (NaN is refused).
    void SetRandDistortion(float randDistortion);
    // Accepted in 0.0..0.5 inclusive only (NaN is refused).
    void SetConstDistortion(float constDistortion);

    float GetIntensity() const;
    float GetRandDistortion() const;
    float GetConstDistortion() const;

private:
    // Neutral defaults: 0, within every range; the stage changes nothing.
    float intensity = 0.0F;
    float randDistortion = 0.0F;
    float constDistortion = 0.0F;
};

} // namespace Zorvan::Proc

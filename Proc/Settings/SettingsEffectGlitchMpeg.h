#pragma once
#include <array>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// MPEG-artefact glitch. Overrides IsEqualTo (intensity only, exact), IsEmpty (intensity near
// zero) and Deserialize (through SetIntensity).
class ZORVAN_SETTINGS_EXPORT SettingsEffectGlitchMpeg : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Intensity exact; the three private parameters are not compared.
    bool operator==(const SettingsEffectGlitchMpeg& other) const;

    // Throws SettingsException "Invalid intensity value. Must be greater or equal 0.0" below
    // 0.0 and leaves the field; 0.0 (and NaN, which is not below 0.0) is accepted.
    void SetIntensity(float intensity);
    float GetIntensity() const;

    // Three unnamed bools, in declared order; no key reads them.
    void SetPrivateParameters(bool first, bool second, bool third);
    std::array<bool, 3> GetPrivateParameters() const;

private:
    float intensity = 0.0F; // neutral default: 0, the stage changes nothing
    // Defaults: false.
    bool privateFirst = false;
    bool privateSecond = false;
    bool privateThird = false;
};

} // namespace Zorvan::Proc

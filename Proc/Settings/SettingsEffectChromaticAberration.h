#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Chromatic aberration. Map form, key "intensity" (float); compares the intensity exactly;
// keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectChromaticAberration : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Intensity, exact.
    bool operator==(const SettingsEffectChromaticAberration& other) const;

    void SetIntensity(float intensity);
    float GetIntensity() const;

private:
    float intensity = 0.0F; // neutral default: 0, the stage changes nothing
};

} // namespace Zorvan::Proc

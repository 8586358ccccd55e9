#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Light leaks. Map form, keys "preset" (int), "intensity" (float); compares both fields
// exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectLightLeaks : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Preset and intensity, exact.
    bool operator==(const SettingsEffectLightLeaks& other) const;

    void SetPreset(int preset); // plain store
    void SetIntensity(float intensity);

    int GetPreset() const;
    float GetIntensity() const;

private:
    // Neutral defaults: preset 0, intensity 0, the stage changes nothing.
    int preset = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A colour filter: a preset or a filter number with a colour and a factor. Map form, keys
// "preset", "filter" (int), "r", "g", "b", "factor", "intensity" (float), each on its own.
// Compares all seven fields exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorFilter : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // All seven fields, exact.
    bool operator==(const SettingsEffectColorFilter& other) const;

    int GetPreset() const;
    int GetFilter() const;
    float GetRed() const;
    float GetGreen() const;
    float GetBlue() const;
    float GetFactor() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, an intensity of 0 changes nothing.
    int preset = 0;
    int filter = 0;
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float factor = 0.0F;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Posterize. Map form, keys "colorsNumber" (int, through its setter), "intensity" (float,
// through its setter), "is_pal" (int, true when not 0), "seed" (int); compares all four
// exactly; empty when the number of colours is below 1 or the intensity is near zero.
class ZORVAN_SETTINGS_EXPORT SettingsEffectPosterize : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // All four fields, exact.
    bool operator==(const SettingsEffectPosterize& other) const;

    // A negative number raises SettingsException; 0 is accepted.
    void SetColorsNumber(int colorsNumber);
    // Anything outside 0..1 inclusive (not-a-number too) raises SettingsException.
    void SetIntensity(float intensity);
    void SetIsPal(bool isPal); // plain store
    void SetSeed(int seed);    // plain store

    int GetColorsNumber() const;
    bool GetIsPal() const;
    int GetSeed() const;
    float GetIntensity() const;

private:
    // Neutral defaults: no colours and no intensity, the stage changes nothing.
    int colorsNumber = 0;
    bool isPal = false;
    int seed = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

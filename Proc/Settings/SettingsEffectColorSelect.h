#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Keeps one colour and fades the rest. Map form: "r", "g", "b" first (ints cut to 8 bits,
// the colour changes only when all three are given), then "angle" (int), "noise",
// "harshness", "transparency" (double) and "intensity" (float), each on its own. Keeps the
// base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorSelect : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(int angle, double noise, double harshness, double transparency);
    void SetIntensity(float intensity); // plain store

    int GetAngle() const;
    double GetNoise() const;
    double GetHarshness() const;
    double GetTransparency() const;
    Color GetColor() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, an intensity of 0 changes nothing.
    int angle = 0;
    double noise = 0.0;
    double harshness = 0.0;
    double transparency = 0.0;
    Color color = 0; // red in the low byte, then green, blue; top byte 0
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Keys out a colour. Map form, keys "angle" (int), "noise", "harshness", "transparency" (read
// as float, kept as double) and "r", "g", "b" (the key colour, each cut to 8 bits on its own).
// Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectChromakey : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // All or nothing: a key that fails to convert leaves every field as it was.
    void Deserialize(const std::string& options) override;

    void SetParams(int angle, double noise, double harshness, double transparency);

    int GetAngle() const;
    double GetNoise() const;
    double GetHarshness() const;
    double GetTransparency() const;
    Color GetKeyColor() const;

private:
    // Neutral defaults: all 0.
    int angle = 0;
    double noise = 0.0;
    double harshness = 0.0;
    double transparency = 0.0;
    Color keyColor = 0; // red in the low byte, then green, blue; top byte 0
};

} // namespace Zorvan::Proc

#pragma once
#include <utility>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Shifts the chroma along a blue-red and a magenta-green axis. Map form, keys "shiftBR" and
// "shiftMG" (float); compares both exactly; empty when both are near zero.
class ZORVAN_SETTINGS_EXPORT SettingsEffectShiftUV : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Both shifts, exact.
    bool operator==(const SettingsEffectShiftUV& other) const;

    void SetShiftBlueRed(float shift);      // plain store
    void SetShiftMagentaGreen(float shift); // plain store

    float GetBlueRed() const;
    float GetMagentaGreen() const;

    // The two shifts turned by 45 degrees onto the U and V axes, in 8-bit steps: with
    // a = blue-red * 255 and b = magenta-green * 255 in float, (ceil(-(a + b) / sqrt 2),
    // ceil((a - b) / sqrt 2)), the division and ceil in double, each truncated to int
    // (saturating at the limits of int).
    std::pair<int, int> CalculateShift() const;

private:
    // Neutral defaults: no shift.
    float blueRed = 0.0F;
    float magentaGreen = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// VHS. Map form, keys "speed", "relief", "smoothness", "shift" (double), "intensity" (float);
// no key for the draw-border flag. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectVHS : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    // In field order (speed, shift, smoothness, relief), not in key order.
    void SetParams(double speed, double shift, double smoothness, double relief);
    void SetDrawBorder(bool drawBorder);
    // Raises anything below the float 0.000001 (bits 0x358637BD) to it; "intensity" given
    // through Deserialize bypasses this floor on purpose, so saved presets load as written.
    void SetIntensity(float intensity);

    double GetSpeed() const;
    double GetShift() const;
    double GetSmoothness() const;
    double GetRelief() const;
    bool GetDrawBorder() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0 and no border, the stage changes nothing.
    double speed = 0.0;
    double shift = 0.0;
    double smoothness = 0.0;
    double relief = 0.0;
    bool drawBorder = false;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

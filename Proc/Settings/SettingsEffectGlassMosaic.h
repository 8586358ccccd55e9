#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Glass mosaic. Map form, keys "angle", "curve", "repeatsh", "repeatsv" (double), "intensity"
// (float); keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGlassMosaic : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(double angle, double curve, double repeatsh, double repeatsv);
    void SetIntensity(float intensity); // plain store

    double GetAngle() const;
    // Computed for the renderer: std::fma(curve - 0.5, intensity widened to double, 0.5); 0.5
    // at intensity 0, the field at intensity 1. It takes the name of the field getter, so the
    // field curve has no plain getter.
    double GetCurve() const;
    double GetRepeatsh() const;
    double GetRepeatsv() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double angle = 0.0;
    double curve = 0.0;
    double repeatsh = 0.0;
    double repeatsv = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

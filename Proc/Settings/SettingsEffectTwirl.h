#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Twirl. Map form, keys "rt0", "vr", "tt0", "vt" (double), "intensity" (float); keeps the
// base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTwirl : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(double rt0, double vr, double tt0, double vt);
    void SetIntensity(float intensity); // plain store

    double GetRt0() const;
    double GetVr() const;
    double GetTt0() const;
    double GetVt() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double rt0 = 0.0;
    double vr = 0.0;
    double tt0 = 0.0;
    double vt = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

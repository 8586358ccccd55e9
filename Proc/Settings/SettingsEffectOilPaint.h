#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Oil paint. Map form, keys "radius" (int), "intensity" (float); compares both fields
// exactly; empty when the radius is 0 or the intensity is near zero.
class ZORVAN_SETTINGS_EXPORT SettingsEffectOilPaint : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Radius and intensity, exact.
    bool operator==(const SettingsEffectOilPaint& other) const;

    void SetRadius(int radius);         // plain store
    void SetIntensity(float intensity); // plain store

    int GetRadius() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing (and is empty).
    int radius = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Fish eye. Map form, keys "deviation" (double), "intensity" (float); compares both fields
// exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFishEye : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Deviation and intensity, exact.
    bool operator==(const SettingsEffectFishEye& other) const;

    void SetDeviation(double deviation);
    void SetIntensity(float intensity);

    double GetDeviation() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double deviation = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

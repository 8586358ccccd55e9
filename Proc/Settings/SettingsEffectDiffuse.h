#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Diffuse. Map form, keys "level" (double), "probability" (double), "intensity" (float);
// keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDiffuse : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(double level, double probability);
    void SetIntensity(float intensity); // plain store

    double GetLevel() const;
    double GetProbability() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double level = 0.0;
    double probability = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

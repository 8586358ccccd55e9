#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Stripes. Map form, keys "count" (int), "deep" (double), "intensity" (float); empty when the
// intensity is near zero or the count is 0; keeps the base's IsEqualTo.
class ZORVAN_SETTINGS_EXPORT SettingsEffectStripes : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    void SetCount(int count);
    void SetDeep(double deep);
    void SetIntensity(float intensity);

    int GetCount() const;
    double GetDeep() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing (and is empty).
    int count = 0;
    double deep = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

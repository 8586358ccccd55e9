#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Vertigo. Map form, keys "scale", "speed", "intensity", all double (the intensity is a
// double here, unlike the float of most of the family); keeps the base's IsEqualTo and
// IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectVertigo : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(double scale, double speed);
    void SetIntensity(double intensity);

    double GetScale() const;
    double GetSpeed() const;
    double GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double scale = 0.0;
    double speed = 0.0;
    double intensity = 0.0;
};

} // namespace Zorvan::Proc

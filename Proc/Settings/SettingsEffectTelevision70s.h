#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Seventies television. Map form, keys "intensity", "stripesWidth" (float); compares both
// fields exactly; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTelevision70s : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Intensity and stripes width, exact.
    bool operator==(const SettingsEffectTelevision70s& other) const;

    void SetIntensity(float intensity);
    void SetStripesWidth(float stripesWidth);

    float GetIntensity() const;
    float GetStripesWidth() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    float intensity = 0.0F;
    float stripesWidth = 0.0F;
};

} // namespace Zorvan::Proc

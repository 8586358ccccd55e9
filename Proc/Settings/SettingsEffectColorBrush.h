#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Colour brush strokes. Map form, keys "angle", "size", "rough", "type" (int) and
// "intensity" (float), each on its own. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorBrush : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetIntensity(float intensity); // plain store

    int GetAngle() const;
    int GetSize() const;
    int GetRough() const;
    int GetType() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, an intensity of 0 changes nothing.
    int angle = 0;
    int size = 0;
    int rough = 0;
    int type = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

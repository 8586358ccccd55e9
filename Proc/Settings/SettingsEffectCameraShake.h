#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The smooth pseudo-random offsets of a shaken camera. Overrides IsEmpty and Deserialize; keeps
// the base's IsEqualTo.
class ZORVAN_SETTINGS_EXPORT SettingsEffectCameraShake : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // True when intensity is near zero; else when freq is near zero; else only when rotate,
    // shiftx and shifty are all near zero. Persistence does not count.
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Plain stores.
    void SetSettings(double shiftx, double shifty, double rotate, double freq, double persistence);
    void SetIntensity(float intensity);

    double GetShiftx() const;
    double GetShifty() const;
    double GetRotate() const;
    double GetFreq() const;
    double GetPersistence() const;
    float GetIntensity() const;

    // Integer-hash value noise summed over `octaves` octaves, one coefficient row per axis; 0.0
    // when octaves is below 1. They read no field: the result depends only on the arguments. A
    // position outside the range of a 32-bit int is truncated with saturation (NaN gives 0), as
    // the double-to-int conversion of 64-bit Arm does.
    double GetNoizeX(double time, int octaves, double persistence) const;
    double GetNoizeY(double time, int octaves, double persistence) const;
    double GetNoizeR(double time, int octaves, double persistence) const;

private:
    // Neutral defaults: all 0, so that the record is empty (no shake).
    double shiftx = 0.0;
    double shifty = 0.0;
    double rotate = 0.0;
    double freq = 0.0;
    double persistence = 0.0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Mosaic. Map form, keys "type", "amountVer", "amountHor" (int), "intensity" (float); keeps
// the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectMosaic : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    // The first argument goes into amountHor, the second into amountVer, the reverse of the
    // field order; kept so for the callers that rely on it.
    void SetAmount(int amountHor, int amountVer);
    void SetType(int type);             // plain store
    void SetIntensity(float intensity); // plain store

    int GetType() const;
    float GetIntensity() const;
    // Computed in float from the field amountVer / amountHor (a) and the frame extent n:
    // p = powf(intensity, 0.2f); n - (n - a) * p in one fused step; truncated toward zero;
    // anything not above 1 (NaN included) is 1, anything beyond int is INT_MAX.
    int GetAmountVer(int n) const;
    int GetAmountHor(int n) const;
    // The stored fields, overloads beside the computed getters above, which take a frame
    // extent.
    int GetAmountVer() const;
    int GetAmountHor() const;

private:
    // Neutral defaults: all 0; at intensity 0 both amounts compute to n, the stage changes
    // nothing.
    int type = 0;
    int amountVer = 0;
    int amountHor = 0;
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc

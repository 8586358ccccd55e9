#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A wavelet denoiser: the depth of the decomposition and the strengths for luma and chroma.
// No option keys (the base's Deserialize throws). Empty when the depth is 0 and both strengths
// are exactly 0; compares all three fields exactly.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDenoiseOvercompleteWavelet : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;

    // All three fields, exact.
    bool operator==(const SettingsEffectDenoiseOvercompleteWavelet& other) const;

    // Plain stores.
    void SetDepth(int value);
    void SetLumaStrength(double value);
    void SetChromaStrength(double value);

    int GetDepth() const;
    double GetLumaStrength() const;
    double GetChromaStrength() const;

private:
    // Neutral defaults: all 0, the stage changes nothing (and is empty).
    int depth = 0;
    double lumaStrength = 0.0;
    double chromaStrength = 0.0;
};

} // namespace Zorvan::Proc

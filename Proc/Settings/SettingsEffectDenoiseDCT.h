#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A denoiser that thresholds the DCT coefficients of square blocks. No option keys (the base's
// Deserialize throws). Empty when the strength is exactly 0 or the block size is 0; compares
// all three fields exactly.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDenoiseDCT : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;

    // All three fields, exact.
    bool operator==(const SettingsEffectDenoiseDCT& other) const;

    // Plain stores.
    void SetSigma(double value);
    void SetOverlap(int value);
    void SetBlockSizeBits(int value);

    double GetSigma() const;
    int GetOverlap() const;
    int GetBlockSizeBits() const;

private:
    double sigma = 0.0;
    int overlap = 0;
    int blockSizeBits = 3; // blocks of 2^3 = 8 pixels a side
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A spatial and temporal denoiser with separate strengths for luma and chroma. No option keys
// (the base's Deserialize throws). Empty when both spatial strengths are exactly 0, whatever
// the temporal ones hold; compares all four within an absolute 0.00001.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDenoiseChromaLuma : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;

    // Each pair of the four strengths differs by strictly less than 0.00001.
    bool operator==(const SettingsEffectDenoiseChromaLuma& other) const;

    // Plain stores.
    void SetLumaSpatial(double value);
    void SetChromaSpatial(double value);
    void SetLumaTemporal(double value);
    void SetChromaTemporal(double value);

    double GetLumaSpatial() const;
    double GetChromaSpatial() const;
    double GetLumaTemporal() const;
    double GetChromaTemporal() const;

private:
    double lumaSpatial = 4.0;
    double chromaSpatial = 3.0;
    double lumaTemporal = 6.0;
    double chromaTemporal = 4.5;
};

} // namespace Zorvan::Proc

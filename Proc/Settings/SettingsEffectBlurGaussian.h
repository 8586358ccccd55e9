#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Gaussian blur, keys "scale" and "fast". Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectBlurGaussian : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetScale(double scale);
    double GetScale() const;
    void SetFast(bool fast);
    bool GetFast() const;

private:
    double scale = 0.0; // neutral default: 0, no blur
    bool fast = false;  // neutral default: the ordinary variant
};

} // namespace Zorvan::Proc

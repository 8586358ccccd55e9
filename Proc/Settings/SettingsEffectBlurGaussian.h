#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 1.1: the reference record. Keeps the base's IsEqualTo and IsEmpty.
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
    double scale = 0.0; // default left open by the spec: 0, no blur (neutral)
    bool fast = false;  // default left open by the spec: the ordinary variant
};

} // namespace Zorvan::Proc

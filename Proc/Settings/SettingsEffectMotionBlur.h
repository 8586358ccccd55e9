#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Motion blur. Map form, key "scale" (double); keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectMotionBlur : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetScale(double scale); // plain store
    double GetScale() const;

private:
    double scale = 0.0; // neutral default: 0, no blur
};

} // namespace Zorvan::Proc

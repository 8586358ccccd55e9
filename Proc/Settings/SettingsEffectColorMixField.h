#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A colour field by threshold and contrast, set through its setters only: it has no option
// keys, and keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorMixField : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    void SetThreshold(double threshold); // plain store
    void SetContrast(double contrast);   // plain store

    double GetThreshold() const;
    double GetContrast() const;

private:
    // Neutral defaults: 0.
    double threshold = 0.0;
    double contrast = 0.0;
};

} // namespace Zorvan::Proc

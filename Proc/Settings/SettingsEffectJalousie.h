#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Jalousie, one field `thickness`. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectJalousie : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    void SetThickness(unsigned int thickness);
    unsigned int GetThickness() const;

private:
    unsigned int thickness = 0; // neutral default: 0, no slats
};

} // namespace Zorvan::Proc

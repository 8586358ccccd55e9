#pragma once
#include "Proc/Settings/SettingsFilterSpeedUp.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT SettingsFilterSpeedUpVideo : public SettingsFilterSpeedUp {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

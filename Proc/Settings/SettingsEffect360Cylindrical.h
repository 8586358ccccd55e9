#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT SettingsEffect360Cylindrical : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

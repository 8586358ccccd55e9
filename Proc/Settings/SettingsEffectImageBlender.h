#pragma once
#include "Proc/Settings/SettingsEffectColorBlender.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT SettingsEffectImageBlender : public SettingsEffectColorBlender {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

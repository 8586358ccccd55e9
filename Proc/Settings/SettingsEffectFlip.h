#pragma once
#include "Proc/Settings/SettingsEffectTransform.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT SettingsEffectFlip : public SettingsEffectTransform {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Identifier-only record: the class carries its identifier and keeps the base's IsEqualTo,
// IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectOpacity : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

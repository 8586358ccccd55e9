#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Identifier-only class: the engine picks the stage by its CLASS_ID; it carries no options,
// so the record keeps the base operations (IsEqualTo and Deserialize throw, IsEmpty is false).
class ZORVAN_SETTINGS_EXPORT SettingsFilterVideoMixer : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc

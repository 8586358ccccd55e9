#include "Proc/Settings/SettingsTransitionGlitch.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionGlitch::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionGlitch";

const std::string& SettingsTransitionGlitch::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionGlitch::Clone() const
{
    return std::make_unique<SettingsTransitionGlitch>(*this);
}

void SettingsTransitionGlitch::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"type"});
    // Only the upper bound is checked: a negative number is stored as given.
    if (const auto value = MapForm::Find<int>(map, "type")) {
        if (*value >= 4) {
            ThrowSettings("Invalid type");
        }
        type = static_cast<Type>(*value);
    }
}

void SettingsTransitionGlitch::SetType(Type value)
{
    type = value;
}

SettingsTransitionGlitch::Type SettingsTransitionGlitch::GetType() const
{
    return type;
}

} // namespace Zorvan::Proc

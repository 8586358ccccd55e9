#include "Proc/Settings/SettingsTransitionRageZoom.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRageZoom::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionRageZoom";

const std::string& SettingsTransitionRageZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRageZoom::Clone() const
{
    return std::make_unique<SettingsTransitionRageZoom>(*this);
}

void SettingsTransitionRageZoom::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"type"});
    // Only the upper bound is checked: a negative number is stored as given.
    if (const auto value = MapForm::Find<int>(map, "type")) {
        if (*value >= 2) {
            ThrowSettings("Invalid type");
        }
        type = static_cast<Type>(*value);
    }
}

void SettingsTransitionRageZoom::SetType(Type value)
{
    type = value;
}

SettingsTransitionRageZoom::Type SettingsTransitionRageZoom::GetType() const
{
    return type;
}

} // namespace Zorvan::Proc

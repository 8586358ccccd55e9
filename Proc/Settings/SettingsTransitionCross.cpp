#include "Proc/Settings/SettingsTransitionCross.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionCross::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionCross";

const std::string& SettingsTransitionCross::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionCross::Clone() const
{
    return std::make_unique<SettingsTransitionCross>(*this);
}

void SettingsTransitionCross::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"cross"});
    if (const auto value = MapForm::Find<int>(map, "cross")) {
        cross = *value > 0; // greater than 0, not non-zero: saved projects read as they always have
    }
}

} // namespace Zorvan::Proc

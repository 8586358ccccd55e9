#include "Proc/Settings/SettingsFilterRepeatController.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterRepeatController::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_REPEAT_CONTROLLER$$";

const std::string& SettingsFilterRepeatController::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterRepeatController::Clone() const
{
    return std::make_unique<SettingsFilterRepeatController>(*this);
}

} // namespace Zorvan::Proc

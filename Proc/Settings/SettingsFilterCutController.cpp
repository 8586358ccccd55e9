#include "Proc/Settings/SettingsFilterCutController.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterCutController::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_CUT_CONTROLLER$$";

const std::string& SettingsFilterCutController::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterCutController::Clone() const
{
    return std::make_unique<SettingsFilterCutController>(*this);
}

} // namespace Zorvan::Proc

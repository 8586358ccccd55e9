#include "Proc/Settings/SettingsFilterSpeedUp.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterSpeedUp::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_SPEED$$";

const std::string& SettingsFilterSpeedUp::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterSpeedUp::Clone() const
{
    return std::make_unique<SettingsFilterSpeedUp>(*this);
}

} // namespace Zorvan::Proc

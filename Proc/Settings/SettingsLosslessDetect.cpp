#include "Proc/Settings/SettingsLosslessDetect.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsLosslessDetect::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsLosslessDetect";

const std::string& SettingsLosslessDetect::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsLosslessDetect::Clone() const
{
    return std::make_unique<SettingsLosslessDetect>(*this);
}

} // namespace Zorvan::Proc

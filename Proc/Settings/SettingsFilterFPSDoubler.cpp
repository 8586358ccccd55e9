#include "Proc/Settings/SettingsFilterFPSDoubler.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterFPSDoubler::CLASS_ID ZORVAN_INIT_STRINGS = "FilterFPSDoubler";

const std::string& SettingsFilterFPSDoubler::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterFPSDoubler::Clone() const
{
    return std::make_unique<SettingsFilterFPSDoubler>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsFilterRepeat.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterRepeat::CLASS_ID ZORVAN_INIT_STRINGS = "FilterRepeat";

const std::string& SettingsFilterRepeat::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterRepeat::Clone() const
{
    return std::make_unique<SettingsFilterRepeat>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsFilterReverse.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterReverse::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_REVERSE$$";

const std::string& SettingsFilterReverse::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterReverse::Clone() const
{
    return std::make_unique<SettingsFilterReverse>(*this);
}

} // namespace Zorvan::Proc

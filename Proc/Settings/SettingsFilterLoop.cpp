#include "Proc/Settings/SettingsFilterLoop.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterLoop::CLASS_ID ZORVAN_INIT_STRINGS = "FilterLoop";

const std::string& SettingsFilterLoop::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterLoop::Clone() const
{
    return std::make_unique<SettingsFilterLoop>(*this);
}

} // namespace Zorvan::Proc

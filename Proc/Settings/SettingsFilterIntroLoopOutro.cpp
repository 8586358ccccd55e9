#include "Proc/Settings/SettingsFilterIntroLoopOutro.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterIntroLoopOutro::CLASS_ID ZORVAN_INIT_STRINGS = "FilterIntroLoopOutro";

const std::string& SettingsFilterIntroLoopOutro::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterIntroLoopOutro::Clone() const
{
    return std::make_unique<SettingsFilterIntroLoopOutro>(*this);
}

} // namespace Zorvan::Proc

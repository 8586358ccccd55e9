#include "Proc/Settings/SettingsTransitionTemplateZES.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionTemplateZES::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionTemplateZES";

const std::string& SettingsTransitionTemplateZES::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionTemplateZES::Clone() const
{
    return std::make_unique<SettingsTransitionTemplateZES>(*this);
}

} // namespace Zorvan::Proc

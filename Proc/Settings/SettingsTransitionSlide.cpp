#include "Proc/Settings/SettingsTransitionSlide.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSlide::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSlide$$";

const std::string& SettingsTransitionSlide::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSlide::Clone() const
{
    return std::make_unique<SettingsTransitionSlide>(*this);
}

} // namespace Zorvan::Proc

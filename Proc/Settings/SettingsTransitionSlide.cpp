#include "Proc/Settings/SettingsTransitionSlide.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

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

void SettingsTransitionSlide::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc

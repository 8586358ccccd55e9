#include "Proc/Settings/SettingsTransitionRippleSmooth.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRippleSmooth::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRippleSmooth$$";

const std::string& SettingsTransitionRippleSmooth::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRippleSmooth::Clone() const
{
    return std::make_unique<SettingsTransitionRippleSmooth>(*this);
}

void SettingsTransitionRippleSmooth::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"freq", freq}, IntegerKey{"ampl", ampl});
}

} // namespace Zorvan::Proc

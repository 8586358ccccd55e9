#include "Proc/Settings/SettingsTransitionCircle.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionCircle::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionCircle$$";

const std::string& SettingsTransitionCircle::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionCircle::Clone() const
{
    return std::make_unique<SettingsTransitionCircle>(*this);
}

void SettingsTransitionCircle::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

} // namespace Zorvan::Proc

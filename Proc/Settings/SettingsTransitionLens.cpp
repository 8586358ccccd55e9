#include "Proc/Settings/SettingsTransitionLens.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionLens::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionLens$$";

const std::string& SettingsTransitionLens::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionLens::Clone() const
{
    return std::make_unique<SettingsTransitionLens>(*this);
}

void SettingsTransitionLens::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc

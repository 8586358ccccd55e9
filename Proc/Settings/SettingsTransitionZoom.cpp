#include "Proc/Settings/SettingsTransitionZoom.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionZoom::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionZoom$$";

const std::string& SettingsTransitionZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionZoom::Clone() const
{
    return std::make_unique<SettingsTransitionZoom>(*this);
}

void SettingsTransitionZoom::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc

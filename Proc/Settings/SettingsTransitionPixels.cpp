#include "Proc/Settings/SettingsTransitionPixels.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPixels::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionPixels";

const std::string& SettingsTransitionPixels::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPixels::Clone() const
{
    return std::make_unique<SettingsTransitionPixels>(*this);
}

void SettingsTransitionPixels::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc

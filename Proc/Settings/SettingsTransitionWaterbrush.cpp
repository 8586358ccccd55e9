#include "Proc/Settings/SettingsTransitionWaterbrush.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionWaterbrush::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionWaterbrush$$";

const std::string& SettingsTransitionWaterbrush::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionWaterbrush::Clone() const
{
    return std::make_unique<SettingsTransitionWaterbrush>(*this);
}

void SettingsTransitionWaterbrush::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"angle", angle}, IntegerKey{"size", size}, IntegerKey{"rough", rough},
                    IntegerKey{"type", type});
}

} // namespace Zorvan::Proc

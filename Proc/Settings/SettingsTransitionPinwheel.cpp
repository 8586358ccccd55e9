#include "Proc/Settings/SettingsTransitionPinwheel.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPinwheel::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionPinwheel$$";

const std::string& SettingsTransitionPinwheel::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPinwheel::Clone() const
{
    return std::make_unique<SettingsTransitionPinwheel>(*this);
}

void SettingsTransitionPinwheel::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"n", num}, IntegerKey{"freq", freq}, IntegerKey{"ampl", ampl},
                    IntegerKey{"smoothness", smoothness});
}

} // namespace Zorvan::Proc

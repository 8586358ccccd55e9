#include "Proc/Settings/SettingsTransitionMosaic.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionMosaic::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionMosaic";

const std::string& SettingsTransitionMosaic::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionMosaic::Clone() const
{
    return std::make_unique<SettingsTransitionMosaic>(*this);
}

} // namespace Zorvan::Proc

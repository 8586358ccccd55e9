#include "Proc/Settings/SettingsTransitionPuzzle.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPuzzle::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionPuzzle";

const std::string& SettingsTransitionPuzzle::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPuzzle::Clone() const
{
    return std::make_unique<SettingsTransitionPuzzle>(*this);
}

} // namespace Zorvan::Proc

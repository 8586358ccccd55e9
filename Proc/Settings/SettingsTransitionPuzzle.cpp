#include "Proc/Settings/SettingsTransitionPuzzle.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

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

void SettingsTransitionPuzzle::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"type", type});
}

} // namespace Zorvan::Proc

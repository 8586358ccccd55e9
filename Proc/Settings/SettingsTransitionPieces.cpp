#include "Proc/Settings/SettingsTransitionPieces.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionPieces::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionPieces";

const std::string& SettingsTransitionPieces::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionPieces::Clone() const
{
    return std::make_unique<SettingsTransitionPieces>(*this);
}

} // namespace Zorvan::Proc

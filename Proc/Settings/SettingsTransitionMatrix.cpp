#include "Proc/Settings/SettingsTransitionMatrix.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionMatrix::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionMatrix$$";

const std::string& SettingsTransitionMatrix::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionMatrix::Clone() const
{
    return std::make_unique<SettingsTransitionMatrix>(*this);
}

} // namespace Zorvan::Proc

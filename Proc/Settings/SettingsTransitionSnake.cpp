#include "Proc/Settings/SettingsTransitionSnake.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSnake::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSnake$$";

const std::string& SettingsTransitionSnake::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSnake::Clone() const
{
    return std::make_unique<SettingsTransitionSnake>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsTransitionSnake.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

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

void SettingsTransitionSnake::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"thickness", thickness}, IntegerKey{"smoothness", smoothness});
}

} // namespace Zorvan::Proc

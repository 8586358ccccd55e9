#include "Proc/Settings/SettingsTransitionOrigamiPleats.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionOrigamiPleats::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionOrigamiPleats$$";

const std::string& SettingsTransitionOrigamiPleats::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionOrigamiPleats::Clone() const
{
    return std::make_unique<SettingsTransitionOrigamiPleats>(*this);
}

void SettingsTransitionOrigamiPleats::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"n", num}, IntegerKey{"direction", dir});
}

int SettingsTransitionOrigamiPleats::GetDir() const
{
    switch (dir) {
    case Direction::Negative:
        return -1;
    case Direction::Positive:
        return 1;
    }
    ThrowLogicError("Incorrect value passed, use enumerated value");
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsTransitionMatrix.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"

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

void SettingsTransitionMatrix::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"blocks", blockCount}, IntegerKey{"smoothness", smoothness});
}

} // namespace Zorvan::Proc

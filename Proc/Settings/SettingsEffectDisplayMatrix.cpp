#include "Proc/Settings/SettingsEffectDisplayMatrix.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDisplayMatrix::CLASS_ID ZORVAN_INIT_STRINGS = "EffectDisplayMatrix";

const std::string& SettingsEffectDisplayMatrix::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDisplayMatrix::Clone() const
{
    return std::make_unique<SettingsEffectDisplayMatrix>(*this);
}

} // namespace Zorvan::Proc

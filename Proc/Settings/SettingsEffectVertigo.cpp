#include "Proc/Settings/SettingsEffectVertigo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVertigo::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectVertigo$$";

const std::string& SettingsEffectVertigo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVertigo::Clone() const
{
    return std::make_unique<SettingsEffectVertigo>(*this);
}

} // namespace Zorvan::Proc

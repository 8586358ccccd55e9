#include "Proc/Settings/SettingsEffectFindEdges.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFindEdges::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectFindEdges$$";

const std::string& SettingsEffectFindEdges::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFindEdges::Clone() const
{
    return std::make_unique<SettingsEffectFindEdges>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectHalfTone.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectHalfTone::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectHalfTone$$";

const std::string& SettingsEffectHalfTone::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectHalfTone::Clone() const
{
    return std::make_unique<SettingsEffectHalfTone>(*this);
}

} // namespace Zorvan::Proc

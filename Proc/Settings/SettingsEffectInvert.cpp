#include "Proc/Settings/SettingsEffectInvert.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectInvert::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectInvert$$";

const std::string& SettingsEffectInvert::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectInvert::Clone() const
{
    return std::make_unique<SettingsEffectInvert>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectDeshake.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDeshake::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DESHAKE";

const std::string& SettingsEffectDeshake::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDeshake::Clone() const
{
    return std::make_unique<SettingsEffectDeshake>(*this);
}

} // namespace Zorvan::Proc

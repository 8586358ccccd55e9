#include "Proc/Settings/SettingsEffectAlphaChannelModifier.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAlphaChannelModifier::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAlphaChannelModifier";

const std::string& SettingsEffectAlphaChannelModifier::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAlphaChannelModifier::Clone() const
{
    return std::make_unique<SettingsEffectAlphaChannelModifier>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectMidEqualizer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMidEqualizer::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsEffectMidEqualizer";

const std::string& SettingsEffectMidEqualizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMidEqualizer::Clone() const
{
    return std::make_unique<SettingsEffectMidEqualizer>(*this);
}

} // namespace Zorvan::Proc

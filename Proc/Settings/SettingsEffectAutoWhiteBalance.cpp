#include "Proc/Settings/SettingsEffectAutoWhiteBalance.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAutoWhiteBalance::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAutoWhiteBalance";

const std::string& SettingsEffectAutoWhiteBalance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAutoWhiteBalance::Clone() const
{
    return std::make_unique<SettingsEffectAutoWhiteBalance>(*this);
}

} // namespace Zorvan::Proc

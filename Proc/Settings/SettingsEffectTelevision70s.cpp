#include "Proc/Settings/SettingsEffectTelevision70s.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTelevision70s::CLASS_ID ZORVAN_INIT_STRINGS = "EffectTelevision70s";

const std::string& SettingsEffectTelevision70s::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTelevision70s::Clone() const
{
    return std::make_unique<SettingsEffectTelevision70s>(*this);
}

} // namespace Zorvan::Proc

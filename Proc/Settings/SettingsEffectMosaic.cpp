#include "Proc/Settings/SettingsEffectMosaic.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMosaic::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMosaic$$";

const std::string& SettingsEffectMosaic::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMosaic::Clone() const
{
    return std::make_unique<SettingsEffectMosaic>(*this);
}

} // namespace Zorvan::Proc

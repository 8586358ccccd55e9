#include "Proc/Settings/SettingsEffectSharpen.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSharpen::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Sharpen$$";

const std::string& SettingsEffectSharpen::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSharpen::Clone() const
{
    return std::make_unique<SettingsEffectSharpen>(*this);
}

} // namespace Zorvan::Proc

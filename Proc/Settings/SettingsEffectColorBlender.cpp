#include "Proc/Settings/SettingsEffectColorBlender.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorBlender::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorBlender$$";

const std::string& SettingsEffectColorBlender::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBlender::Clone() const
{
    return std::make_unique<SettingsEffectColorBlender>(*this);
}

} // namespace Zorvan::Proc

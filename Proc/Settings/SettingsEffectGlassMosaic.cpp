#include "Proc/Settings/SettingsEffectGlassMosaic.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectGlassMosaic::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectGlassMosaic$$";

const std::string& SettingsEffectGlassMosaic::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGlassMosaic::Clone() const
{
    return std::make_unique<SettingsEffectGlassMosaic>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectChromakey.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectChromakey::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Chromakey$$";

const std::string& SettingsEffectChromakey::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChromakey::Clone() const
{
    return std::make_unique<SettingsEffectChromakey>(*this);
}

} // namespace Zorvan::Proc

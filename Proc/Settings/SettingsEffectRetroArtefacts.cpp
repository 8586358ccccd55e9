#include "Proc/Settings/SettingsEffectRetroArtefacts.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRetroArtefacts::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Retro_Artefacts$$";

const std::string& SettingsEffectRetroArtefacts::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRetroArtefacts::Clone() const
{
    return std::make_unique<SettingsEffectRetroArtefacts>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDenoiseChromaLuma::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DENOISE_CHROMA_LUMA";

const std::string& SettingsEffectDenoiseChromaLuma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseChromaLuma::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseChromaLuma>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDenoiseOvercompleteWavelet::CLASS_ID ZORVAN_INIT_STRINGS =
    "EFFECT_DENOISE_OVERCOMPLETE_WAVELET";

const std::string& SettingsEffectDenoiseOvercompleteWavelet::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseOvercompleteWavelet::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseOvercompleteWavelet>(*this);
}

} // namespace Zorvan::Proc

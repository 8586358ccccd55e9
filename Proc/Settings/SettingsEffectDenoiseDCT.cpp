#include "Proc/Settings/SettingsEffectDenoiseDCT.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDenoiseDCT::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DENOISE_DCT";

const std::string& SettingsEffectDenoiseDCT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseDCT::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseDCT>(*this);
}

} // namespace Zorvan::Proc

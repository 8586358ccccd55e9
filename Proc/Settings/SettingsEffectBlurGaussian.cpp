#include "Proc/Settings/SettingsEffectBlurGaussian.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBlurGaussian::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectBlurGaussian$$";

const std::string& SettingsEffectBlurGaussian::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBlurGaussian::Clone() const
{
    return std::make_unique<SettingsEffectBlurGaussian>(*this);
}

} // namespace Zorvan::Proc

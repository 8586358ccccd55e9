#include "Proc/Settings/SettingsEffectExtraAlphaExtractor.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectExtraAlphaExtractor::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_EXTRA_ALPHA_EXTRACTOR";

const std::string& SettingsEffectExtraAlphaExtractor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectExtraAlphaExtractor::Clone() const
{
    return std::make_unique<SettingsEffectExtraAlphaExtractor>(*this);
}

} // namespace Zorvan::Proc

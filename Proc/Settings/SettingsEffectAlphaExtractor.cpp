#include "Proc/Settings/SettingsEffectAlphaExtractor.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAlphaExtractor::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_ALPHA_EXTRACTOR";

const std::string& SettingsEffectAlphaExtractor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAlphaExtractor::Clone() const
{
    return std::make_unique<SettingsEffectAlphaExtractor>(*this);
}

} // namespace Zorvan::Proc

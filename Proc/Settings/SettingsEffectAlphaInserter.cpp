#include "Proc/Settings/SettingsEffectAlphaInserter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAlphaInserter::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAlphaInserter";

const std::string& SettingsEffectAlphaInserter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAlphaInserter::Clone() const
{
    return std::make_unique<SettingsEffectAlphaInserter>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectFilmStrip.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFilmStrip::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFilmStrip";

const std::string& SettingsEffectFilmStrip::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFilmStrip::Clone() const
{
    return std::make_unique<SettingsEffectFilmStrip>(*this);
}

} // namespace Zorvan::Proc

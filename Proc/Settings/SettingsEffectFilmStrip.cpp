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

void SettingsEffectFilmStrip::SetType(Type value)
{
    type = value;
}

SettingsEffectFilmStrip::Type SettingsEffectFilmStrip::GetType() const
{
    return type;
}

} // namespace Zorvan::Proc

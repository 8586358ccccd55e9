#include "Proc/Settings/SettingsEffectJalousie.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectJalousie::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectJalousie$$";

const std::string& SettingsEffectJalousie::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectJalousie::Clone() const
{
    return std::make_unique<SettingsEffectJalousie>(*this);
}

void SettingsEffectJalousie::SetThickness(unsigned int value)
{
    thickness = value;
}

unsigned int SettingsEffectJalousie::GetThickness() const
{
    return thickness;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectColorMixField.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorMixField::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorMixField$$";

const std::string& SettingsEffectColorMixField::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorMixField::Clone() const
{
    return std::make_unique<SettingsEffectColorMixField>(*this);
}

void SettingsEffectColorMixField::SetThreshold(double value)
{
    threshold = value;
}

void SettingsEffectColorMixField::SetContrast(double value)
{
    contrast = value;
}

double SettingsEffectColorMixField::GetThreshold() const
{
    return threshold;
}

double SettingsEffectColorMixField::GetContrast() const
{
    return contrast;
}

} // namespace Zorvan::Proc

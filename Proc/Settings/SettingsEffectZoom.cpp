#include "Proc/Settings/SettingsEffectZoom.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectZoom::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectZoom$$";

const std::string& SettingsEffectZoom::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectZoom::Clone() const
{
    return std::make_unique<SettingsEffectZoom>(*this);
}

void SettingsEffectZoom::SetInOut(double in, double out)
{
    this->in = in;
    this->out = out;
}

double SettingsEffectZoom::GetIn() const
{
    return in;
}

double SettingsEffectZoom::GetOut() const
{
    return out;
}

} // namespace Zorvan::Proc

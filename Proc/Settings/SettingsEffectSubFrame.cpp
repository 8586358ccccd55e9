#include "Proc/Settings/SettingsEffectSubFrame.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSubFrame::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectSubFrame$$";

const std::string& SettingsEffectSubFrame::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSubFrame::Clone() const
{
    return std::make_unique<SettingsEffectSubFrame>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsTransitionZoomBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionZoomBlur::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionZoomBlur";

const std::string& SettingsTransitionZoomBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionZoomBlur::Clone() const
{
    return std::make_unique<SettingsTransitionZoomBlur>(*this);
}

} // namespace Zorvan::Proc

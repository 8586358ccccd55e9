#include "Proc/Settings/SettingsFilterBlurTransparentBorder.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterBlurTransparentBorder::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsFilterBlurTransparentBorder";

const std::string& SettingsFilterBlurTransparentBorder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterBlurTransparentBorder::Clone() const
{
    return std::make_unique<SettingsFilterBlurTransparentBorder>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterSpeedUpVideo::CLASS_ID ZORVAN_INIT_STRINGS = "FilterSpeedUpVideo";

const std::string& SettingsFilterSpeedUpVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterSpeedUpVideo::Clone() const
{
    return std::make_unique<SettingsFilterSpeedUpVideo>(*this);
}

} // namespace Zorvan::Proc

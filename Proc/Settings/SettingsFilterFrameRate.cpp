#include "Proc/Settings/SettingsFilterFrameRate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterFrameRate::CLASS_ID ZORVAN_INIT_STRINGS = "$$VIDEO_FRAMERATE$$";

const std::string& SettingsFilterFrameRate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterFrameRate::Clone() const
{
    return std::make_unique<SettingsFilterFrameRate>(*this);
}

} // namespace Zorvan::Proc

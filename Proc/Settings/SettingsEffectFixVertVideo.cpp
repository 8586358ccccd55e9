#include "Proc/Settings/SettingsEffectFixVertVideo.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFixVertVideo::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFixVertVideo";

const std::string& SettingsEffectFixVertVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFixVertVideo::Clone() const
{
    return std::make_unique<SettingsEffectFixVertVideo>(*this);
}

} // namespace Zorvan::Proc

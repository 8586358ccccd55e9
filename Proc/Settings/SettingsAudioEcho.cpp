#include "Proc/Settings/SettingsAudioEcho.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioEcho::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioEcho";

const std::string& SettingsAudioEcho::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioEcho::Clone() const
{
    return std::make_unique<SettingsAudioEcho>(*this);
}

} // namespace Zorvan::Proc

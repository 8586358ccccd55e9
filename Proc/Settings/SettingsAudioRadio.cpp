#include "Proc/Settings/SettingsAudioRadio.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioRadio::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioRadio";

const std::string& SettingsAudioRadio::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioRadio::Clone() const
{
    return std::make_unique<SettingsAudioRadio>(*this);
}

} // namespace Zorvan::Proc

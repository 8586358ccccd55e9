#include "Proc/Settings/SettingsFilterAudioFormatter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterAudioFormatter::CLASS_ID ZORVAN_INIT_STRINGS = "FilterAudioFormatter";

const std::string& SettingsFilterAudioFormatter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterAudioFormatter::Clone() const
{
    return std::make_unique<SettingsFilterAudioFormatter>(*this);
}

} // namespace Zorvan::Proc

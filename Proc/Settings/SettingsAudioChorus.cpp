#include "Proc/Settings/SettingsAudioChorus.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioChorus::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioChorus";

const std::string& SettingsAudioChorus::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioChorus::Clone() const
{
    return std::make_unique<SettingsAudioChorus>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsAudioDistortion.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioDistortion::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioDistortion";

const std::string& SettingsAudioDistortion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioDistortion::Clone() const
{
    return std::make_unique<SettingsAudioDistortion>(*this);
}

} // namespace Zorvan::Proc

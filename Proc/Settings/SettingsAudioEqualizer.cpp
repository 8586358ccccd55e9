#include "Proc/Settings/SettingsAudioEqualizer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioEqualizer::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioEqualizer";

const std::string& SettingsAudioEqualizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioEqualizer::Clone() const
{
    return std::make_unique<SettingsAudioEqualizer>(*this);
}

} // namespace Zorvan::Proc

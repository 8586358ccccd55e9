#include "Proc/Settings/SettingsAudioHistogram.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsAudioHistogram::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioHistogram";

const std::string& SettingsAudioHistogram::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioHistogram::Clone() const
{
    return std::make_unique<SettingsAudioHistogram>(*this);
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsFilterResample.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterResample::CLASS_ID ZORVAN_INIT_STRINGS = "$$AUDIO_RESAMPLE$$";

const std::string& SettingsFilterResample::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterResample::Clone() const
{
    return std::make_unique<SettingsFilterResample>(*this);
}

} // namespace Zorvan::Proc

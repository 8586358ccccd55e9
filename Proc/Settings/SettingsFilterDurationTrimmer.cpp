#include "Proc/Settings/SettingsFilterDurationTrimmer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterDurationTrimmer::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_DURATION_TRIMMER$$";

const std::string& SettingsFilterDurationTrimmer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterDurationTrimmer::Clone() const
{
    return std::make_unique<SettingsFilterDurationTrimmer>(*this);
}

} // namespace Zorvan::Proc

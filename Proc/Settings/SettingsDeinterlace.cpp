#include "Proc/Settings/SettingsDeinterlace.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsDeinterlace::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DEINTERLACE";

const std::string& SettingsDeinterlace::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsDeinterlace::Clone() const
{
    return std::make_unique<SettingsDeinterlace>(*this);
}

} // namespace Zorvan::Proc

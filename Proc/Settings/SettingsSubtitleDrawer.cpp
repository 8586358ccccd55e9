#include "Proc/Settings/SettingsSubtitleDrawer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsSubtitleDrawer::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsSubtitleDrawer";

const std::string& SettingsSubtitleDrawer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsSubtitleDrawer::Clone() const
{
    return std::make_unique<SettingsSubtitleDrawer>(*this);
}

} // namespace Zorvan::Proc

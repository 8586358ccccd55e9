#include "Proc/Settings/SettingsStreamOneFrame.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsStreamOneFrame::CLASS_ID ZORVAN_INIT_STRINGS = "StreamOneFrame";

const std::string& SettingsStreamOneFrame::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsStreamOneFrame::Clone() const
{
    return std::make_unique<SettingsStreamOneFrame>(*this);
}

} // namespace Zorvan::Proc

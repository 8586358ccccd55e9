#include "Proc/Settings/SettingsFilterLoop.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterLoop::CLASS_ID ZORVAN_INIT_STRINGS = "FilterLoop";

const std::string& SettingsFilterLoop::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterLoop::Clone() const
{
    return std::make_unique<SettingsFilterLoop>(*this);
}

bool SettingsFilterLoop::operator==(const SettingsFilterLoop& other) const
{
    return duration == other.duration;
}

void SettingsFilterLoop::SetDuration(avTime value)
{
    duration = value;
}

avTime SettingsFilterLoop::GetDuration() const
{
    return duration;
}

} // namespace Zorvan::Proc

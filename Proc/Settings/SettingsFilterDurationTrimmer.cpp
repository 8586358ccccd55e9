#include "Proc/Settings/SettingsFilterDurationTrimmer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

constexpr avTime LONGEST_DURATION = 2592000000000; // thirty days

} // namespace

const std::string SettingsFilterDurationTrimmer::CLASS_ID ZORVAN_INIT_STRINGS = "$$FILTER_DURATION_TRIMMER$$";

SettingsFilterDurationTrimmer::SettingsFilterDurationTrimmer(avTime duration, bool value)
    : boolean(value)
{
    SetDuration(duration);
}

const std::string& SettingsFilterDurationTrimmer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterDurationTrimmer::Clone() const
{
    return std::make_unique<SettingsFilterDurationTrimmer>(*this);
}

bool SettingsFilterDurationTrimmer::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterDurationTrimmer&>(other);
}

bool SettingsFilterDurationTrimmer::operator==(const SettingsFilterDurationTrimmer& other) const
{
    return duration == other.duration && boolean == other.boolean;
}

void SettingsFilterDurationTrimmer::SetDuration(avTime value)
{
    if (value >= 1 && value <= LONGEST_DURATION) {
        duration = value;
    }
}

void SettingsFilterDurationTrimmer::SetBoolean(bool value)
{
    boolean = value;
}

avTime SettingsFilterDurationTrimmer::GetDuration() const
{
    return duration;
}

bool SettingsFilterDurationTrimmer::GetBoolean() const
{
    return boolean;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsFilterIntroLoopOutro.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterIntroLoopOutro::CLASS_ID ZORVAN_INIT_STRINGS = "FilterIntroLoopOutro";

const std::string& SettingsFilterIntroLoopOutro::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterIntroLoopOutro::Clone() const
{
    return std::make_unique<SettingsFilterIntroLoopOutro>(*this);
}

bool SettingsFilterIntroLoopOutro::operator==(const SettingsFilterIntroLoopOutro& other) const
{
    return duration == other.duration && intro == other.intro && outro == other.outro &&
           loopMinCount == other.loopMinCount;
}

void SettingsFilterIntroLoopOutro::SetDuration(avTime value)
{
    duration = value;
}

void SettingsFilterIntroLoopOutro::SetIntro(avTime value)
{
    intro = value;
}

void SettingsFilterIntroLoopOutro::SetOutro(avTime value)
{
    outro = value;
}

void SettingsFilterIntroLoopOutro::SetLoopMinCount(unsigned int count)
{
    loopMinCount = count;
}

avTime SettingsFilterIntroLoopOutro::GetDuration() const
{
    return duration;
}

avTime SettingsFilterIntroLoopOutro::GetIntro() const
{
    return intro;
}

avTime SettingsFilterIntroLoopOutro::GetOutro() const
{
    return outro;
}

unsigned int SettingsFilterIntroLoopOutro::GetLoopMinCount() const
{
    return loopMinCount;
}

} // namespace Zorvan::Proc

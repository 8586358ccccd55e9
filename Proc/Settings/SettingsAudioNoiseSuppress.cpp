#include "Proc/Settings/SettingsAudioNoiseSuppress.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsAudioNoiseSuppress::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAudioNoiseSuppress";

const std::string SettingsAudioNoiseSuppress::s_level ZORVAN_INIT_STRINGS = "level";

const std::vector<std::string> SettingsAudioNoiseSuppress::s_params ZORVAN_INIT_PARAMS = {s_level};

const std::string& SettingsAudioNoiseSuppress::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioNoiseSuppress::Clone() const
{
    return std::make_unique<SettingsAudioNoiseSuppress>(*this);
}

bool SettingsAudioNoiseSuppress::IsEqualTo(const Settings& other) const
{
    return level == dynamic_cast<const SettingsAudioNoiseSuppress&>(other).level;
}

void SettingsAudioNoiseSuppress::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    if (const auto value = MapForm::Find<int>(map, s_level)) {
        SetLevel(*value);
    }
}

void SettingsAudioNoiseSuppress::SetLevel(int value)
{
    // Dropped, not refused, unlike the other audio setters: the stage keeps running as it was.
    if (value >= -60 && value <= 0) {
        level = value;
    }
}

int SettingsAudioNoiseSuppress::GetLevel() const
{
    return level;
}

} // namespace Zorvan::Proc

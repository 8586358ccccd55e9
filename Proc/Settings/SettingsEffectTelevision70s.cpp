#include "Proc/Settings/SettingsEffectTelevision70s.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTelevision70s::CLASS_ID ZORVAN_INIT_STRINGS = "EffectTelevision70s";

const std::string& SettingsEffectTelevision70s::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTelevision70s::Clone() const
{
    return std::make_unique<SettingsEffectTelevision70s>(*this);
}

bool SettingsEffectTelevision70s::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectTelevision70s&>(other);
}

void SettingsEffectTelevision70s::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity", "stripesWidth"});
    MapForm::Read(map, "intensity", intensity);
    MapForm::Read(map, "stripesWidth", stripesWidth);
}

bool SettingsEffectTelevision70s::operator==(const SettingsEffectTelevision70s& other) const
{
    return intensity == other.intensity && stripesWidth == other.stripesWidth;
}

void SettingsEffectTelevision70s::SetIntensity(float value)
{
    intensity = value;
}

void SettingsEffectTelevision70s::SetStripesWidth(float value)
{
    stripesWidth = value;
}

float SettingsEffectTelevision70s::GetIntensity() const
{
    return intensity;
}

float SettingsEffectTelevision70s::GetStripesWidth() const
{
    return stripesWidth;
}

} // namespace Zorvan::Proc

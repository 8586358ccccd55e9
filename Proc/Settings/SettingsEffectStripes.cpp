#include "Proc/Settings/SettingsEffectStripes.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectStripes::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectStripes$$";

const std::string& SettingsEffectStripes::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectStripes::Clone() const
{
    return std::make_unique<SettingsEffectStripes>(*this);
}

bool SettingsEffectStripes::IsEmpty() const
{
    return NearZero(intensity) || count == 0;
}

void SettingsEffectStripes::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"count", "deep", "intensity"});
    MapForm::Read(map, "count", count);
    MapForm::Read(map, "deep", deep);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectStripes::SetCount(int value)
{
    count = value;
}

void SettingsEffectStripes::SetDeep(double value)
{
    deep = value;
}

void SettingsEffectStripes::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectStripes::GetCount() const
{
    return count;
}

double SettingsEffectStripes::GetDeep() const
{
    return deep;
}

float SettingsEffectStripes::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

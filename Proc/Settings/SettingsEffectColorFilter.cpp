#include "Proc/Settings/SettingsEffectColorFilter.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorFilter::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorFilter$$";

const std::string& SettingsEffectColorFilter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorFilter::Clone() const
{
    return std::make_unique<SettingsEffectColorFilter>(*this);
}

bool SettingsEffectColorFilter::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorFilter&>(other);
}

void SettingsEffectColorFilter::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"preset", "filter", "r", "g", "b", "factor", "intensity"});
    MapForm::Read(map, "preset", preset);
    MapForm::Read(map, "filter", filter);
    MapForm::Read(map, "r", red);
    MapForm::Read(map, "g", green);
    MapForm::Read(map, "b", blue);
    MapForm::Read(map, "factor", factor);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectColorFilter::operator==(const SettingsEffectColorFilter& other) const
{
    return preset == other.preset && filter == other.filter && red == other.red && green == other.green &&
           blue == other.blue && factor == other.factor && intensity == other.intensity;
}

int SettingsEffectColorFilter::GetPreset() const
{
    return preset;
}

int SettingsEffectColorFilter::GetFilter() const
{
    return filter;
}

float SettingsEffectColorFilter::GetRed() const
{
    return red;
}

float SettingsEffectColorFilter::GetGreen() const
{
    return green;
}

float SettingsEffectColorFilter::GetBlue() const
{
    return blue;
}

float SettingsEffectColorFilter::GetFactor() const
{
    return factor;
}

float SettingsEffectColorFilter::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

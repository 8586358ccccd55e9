#include "Proc/Settings/SettingsEffectPosterize.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPosterize::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_POSTERIZE";

const std::string& SettingsEffectPosterize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPosterize::Clone() const
{
    return std::make_unique<SettingsEffectPosterize>(*this);
}

bool SettingsEffectPosterize::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectPosterize&>(other);
}

bool SettingsEffectPosterize::IsEmpty() const
{
    return colorsNumber < 1 || NearZero(intensity);
}

void SettingsEffectPosterize::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"colorsNumber", "intensity", "is_pal", "seed"});
    if (const auto value = MapForm::Find<int>(map, "colorsNumber")) {
        SetColorsNumber(*value);
    }
    if (const auto value = MapForm::Find<float>(map, "intensity")) {
        SetIntensity(*value);
    }
    MapForm::Read(map, "is_pal", isPal);
    MapForm::Read(map, "seed", seed);
}

bool SettingsEffectPosterize::operator==(const SettingsEffectPosterize& other) const
{
    return colorsNumber == other.colorsNumber && isPal == other.isPal && seed == other.seed &&
           intensity == other.intensity;
}

void SettingsEffectPosterize::SetColorsNumber(int value)
{
    if (value < 0) {
        ThrowSettings("'colorsNumber' must be equal or greater then 0");
    }
    colorsNumber = value;
}

void SettingsEffectPosterize::SetIntensity(float value)
{
    if (!(value >= 0.0F && value <= 1.0F)) {
        ThrowSettings("'intensity' must be corespondent [ 0.0 <= intensivity <= 1.0 ]");
    }
    intensity = value;
}

void SettingsEffectPosterize::SetIsPal(bool value)
{
    isPal = value;
}

void SettingsEffectPosterize::SetSeed(int value)
{
    seed = value;
}

int SettingsEffectPosterize::GetColorsNumber() const
{
    return colorsNumber;
}

bool SettingsEffectPosterize::GetIsPal() const
{
    return isPal;
}

int SettingsEffectPosterize::GetSeed() const
{
    return seed;
}

float SettingsEffectPosterize::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectPopArt.h"

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPopArt::CLASS_ID ZORVAN_INIT_STRINGS = "EffectPopArt";

const std::string& SettingsEffectPopArt::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPopArt::Clone() const
{
    return std::make_unique<SettingsEffectPopArt>(*this);
}

bool SettingsEffectPopArt::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectPopArt&>(other);
}

void SettingsEffectPopArt::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Ten independent keys, in this order ("resize" before "intensity", unlike the field
    // order), as saved presets list them.
    const auto map = GetOptionsMap(
        options, {"saturation", "hue", "offset", "scale", "levels", "nv", "nh", "invert", "resize", "intensity"});
    MapForm::Read(map, "saturation", saturation);
    MapForm::Read(map, "hue", hue);
    MapForm::Read(map, "offset", offset);
    MapForm::Read(map, "scale", scale);
    MapForm::Read(map, "levels", levels);
    MapForm::Read(map, "nv", amountVertical);
    MapForm::Read(map, "nh", amountHorizontal);
    MapForm::ReadExactlyOne(map, "invert", invert);
    MapForm::Read(map, "resize", resize);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectPopArt::operator==(const SettingsEffectPopArt& other) const
{
    return saturation == other.saturation && hue == other.hue && offset == other.offset && scale == other.scale &&
           levels == other.levels && amountVertical == other.amountVertical &&
           amountHorizontal == other.amountHorizontal && invert == other.invert && intensity == other.intensity &&
           resize == other.resize;
}

void SettingsEffectPopArt::SetParams(int amount, int newLevels, double newSaturation, double newHue, double newOffset,
                                     double newScale)
{
    amountVertical = amount;
    amountHorizontal = amount;
    levels = newLevels;
    saturation = newSaturation;
    hue = newHue;
    offset = newOffset;
    scale = newScale;
}

void SettingsEffectPopArt::SetSaturation(double value)
{
    saturation = value;
}

void SettingsEffectPopArt::SetHue(double value)
{
    hue = value;
}

void SettingsEffectPopArt::SetOffset(double value)
{
    offset = value;
}

void SettingsEffectPopArt::SetScale(double value)
{
    scale = value;
}

void SettingsEffectPopArt::SetLevels(int value)
{
    levels = value;
}

void SettingsEffectPopArt::SetAmountVertical(int value)
{
    amountVertical = value;
}

void SettingsEffectPopArt::SetAmountHorizontal(int value)
{
    amountHorizontal = value;
}

void SettingsEffectPopArt::SetIntensity(float value)
{
    intensity = value;
}

void SettingsEffectPopArt::SetInvert(bool value)
{
    invert = value;
}

void SettingsEffectPopArt::SetResize(int value)
{
    resize = value;
}

double SettingsEffectPopArt::GetSaturation() const
{
    return saturation;
}

double SettingsEffectPopArt::GetHue() const
{
    return hue;
}

double SettingsEffectPopArt::GetOffset() const
{
    return offset;
}

double SettingsEffectPopArt::GetScale() const
{
    return scale;
}

int SettingsEffectPopArt::GetLevels() const
{
    const float product = static_cast<float>(levels) * intensity;
    if (!(product > 1.0F)) {
        return 1; // not above 1, NaN included
    }
    return TruncateToIntSaturated(product); // truncation toward zero; at least 1 here
}

int SettingsEffectPopArt::GetStoredLevels() const
{
    return levels;
}

int SettingsEffectPopArt::GetAmountVertical() const
{
    return amountVertical;
}

int SettingsEffectPopArt::GetAmountHorizontal() const
{
    return amountHorizontal;
}

bool SettingsEffectPopArt::GetInvert() const
{
    return invert;
}

float SettingsEffectPopArt::GetIntensity() const
{
    return intensity;
}

int SettingsEffectPopArt::GetResize() const
{
    return resize;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectColorBalance.h"

#include <cmath>
#include <cstdint>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

namespace {

// A slider value computed in double, truncated toward zero to int and clamped to
// -100..100. Clamping before the truncation gives the same result for every number (the
// bounds are whole) and keeps the conversion within int; a not-a-number value, which the
// clamped setters never store, gives 0.
int ToSlider(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(Saturate(value, -100.0, 100.0));
}

// The SetGamma formula, in double, clamped to 0.1..10.
double GammaFromSlider(int value)
{
    const double v = value;
    const double gamma = value < 0 ? 0.1 + 0.9 * (v + 100.0) / 100.0 : 1.0 + 9.0 * v / 100.0;
    return Saturate(gamma, 0.1, 10.0);
}

// The SetSaturation formula, in double, clamped to 0..3.
double SaturationFromSlider(int value)
{
    const double v = value;
    const double factor = value < 0 ? (v + 100.0) / 100.0 + 0.0 : (v + v) / 100.0 + 1.0;
    return Saturate(factor, 0.0, 3.0);
}

// Hue normalisation: exactly 180 stays 180; any other v gives r = (v + 180) % 360
// with the sign of the dividend, plus 360 when negative, and r - 180 is stored. v + 180 is
// computed in 64 bits, so that no value of int overflows.
int NormaliseHue(int value)
{
    if (value == 180) {
        return 180;
    }
    std::int64_t remainder = (static_cast<std::int64_t>(value) + 180) % 360;
    if (remainder < 0) {
        remainder += 360;
    }
    return static_cast<int>(remainder - 180);
}

} // namespace

const std::string SettingsEffectColorBalance::CLASS_ID ZORVAN_INIT_STRINGS = "$$COLOR_BALANCE$$";

const std::string& SettingsEffectColorBalance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBalance::Clone() const
{
    return std::make_unique<SettingsEffectColorBalance>(*this);
}

bool SettingsEffectColorBalance::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorBalance&>(other);
}

bool SettingsEffectColorBalance::IsEmpty() const
{
    return brightness == 0 && contrast == 0 && hue == 0 && redGamma == 0 && greenGamma == 0 && blueGamma == 0 &&
           !IsSaturationSet() && !IsGammaSet();
}

void SettingsEffectColorBalance::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Nine int keys in this order, independent of one another.
    const auto map =
        GetOptionsMap(options, {"brightness", "contrast", "saturation", "hue", "gamma", "rg", "gg", "bg", "weight"});
    MapForm::Read(map, "brightness", brightness);
    MapForm::Read(map, "contrast", contrast);
    if (const auto value = MapForm::Find<int>(map, "saturation")) {
        SetSaturation(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "hue")) {
        hue = NormaliseHue(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "gamma")) {
        SetGamma(*value);
    }
    MapForm::Read(map, "rg", redGamma);
    MapForm::Read(map, "gg", greenGamma);
    MapForm::Read(map, "bg", blueGamma);
    MapForm::Read(map, "weight", weight);
}

bool SettingsEffectColorBalance::operator==(const SettingsEffectColorBalance& other) const
{
    return brightness == other.brightness && contrast == other.contrast && NearlyEqual(saturation, other.saturation) &&
           hue == other.hue && NearlyEqual(gamma, other.gamma) && redGamma == other.redGamma &&
           greenGamma == other.greenGamma && blueGamma == other.blueGamma && weight == other.weight;
}

double SettingsEffectColorBalance::GetFFBrightness() const
{
    return Saturate(2.0 * (static_cast<double>(brightness) + 255.0) / 510.0 - 1.0, -1.0, 1.0);
}

double SettingsEffectColorBalance::GetFFContrast() const
{
    return Saturate(2.0 * (static_cast<double>(contrast) + 127.0) / 254.0 + 0.0, 0.0, 2.0);
}

bool SettingsEffectColorBalance::IsSaturationSet() const
{
    return !NearlyEqual(saturation, 1.0);
}

int SettingsEffectColorBalance::GetSaturation() const
{
    return ToSlider(saturation < 1.0 ? saturation * 100.0 - 100.0 : (saturation - 1.0) * 100.0 * 0.5 + 0.0);
}

void SettingsEffectColorBalance::SetSaturation(int value)
{
    saturation = SaturationFromSlider(value);
}

double SettingsEffectColorBalance::GetFFSaturation() const
{
    return saturation;
}

void SettingsEffectColorBalance::SetFFSaturation(double factor)
{
    saturation = Saturate(factor, 0.0, 3.0);
}

bool SettingsEffectColorBalance::IsGammaSet() const
{
    return !NearlyEqual(gamma, 1.0);
}

int SettingsEffectColorBalance::GetGamma() const
{
    return ToSlider(gamma < 1.0 ? -100.0 + (gamma - 0.1) * 100.0 / 0.9 : 0.0 + (gamma - 1.0) * 100.0 / 9.0);
}

void SettingsEffectColorBalance::SetGamma(int value)
{
    gamma = GammaFromSlider(value);
}

double SettingsEffectColorBalance::GetFFGamma() const
{
    return gamma;
}

void SettingsEffectColorBalance::SetFFGamma(double filterGamma)
{
    gamma = Saturate(filterGamma, 0.1, 10.0);
}

double SettingsEffectColorBalance::GetFFGammaRed() const
{
    return GammaFromSlider(redGamma);
}

double SettingsEffectColorBalance::GetFFGammaGreen() const
{
    return GammaFromSlider(greenGamma);
}

double SettingsEffectColorBalance::GetFFGammaBlue() const
{
    return GammaFromSlider(blueGamma);
}

double SettingsEffectColorBalance::GetFFGammaWeight() const
{
    return Saturate(static_cast<double>(weight) / 100.0 + 0.0, 0.0, 1.0);
}

bool SettingsEffectColorBalance::IsLumaChanged() const
{
    return brightness != 0 || contrast != 0 || redGamma != 0 || greenGamma != 0 || blueGamma != 0 ||
           IsSaturationSet() || IsGammaSet();
}

bool SettingsEffectColorBalance::IsChromaChanged() const
{
    return hue != 0;
}

void SettingsEffectColorBalance::SetBrightness(int value)
{
    brightness = value;
}

void SettingsEffectColorBalance::SetContrast(int value)
{
    contrast = value;
}

void SettingsEffectColorBalance::SetHue(int value)
{
    hue = value;
}

void SettingsEffectColorBalance::SetRedGamma(int value)
{
    redGamma = value;
}

void SettingsEffectColorBalance::SetGreenGamma(int value)
{
    greenGamma = value;
}

void SettingsEffectColorBalance::SetBlueGamma(int value)
{
    blueGamma = value;
}

void SettingsEffectColorBalance::SetWeight(int value)
{
    weight = value;
}

int SettingsEffectColorBalance::GetBrightness() const
{
    return brightness;
}

int SettingsEffectColorBalance::GetContrast() const
{
    return contrast;
}

int SettingsEffectColorBalance::GetHue() const
{
    return hue;
}

int SettingsEffectColorBalance::GetRedGamma() const
{
    return redGamma;
}

int SettingsEffectColorBalance::GetGreenGamma() const
{
    return greenGamma;
}

int SettingsEffectColorBalance::GetBlueGamma() const
{
    return blueGamma;
}

int SettingsEffectColorBalance::GetWeight() const
{
    return weight;
}

} // namespace Zorvan::Proc

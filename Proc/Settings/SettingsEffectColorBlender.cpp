#include "Proc/Settings/SettingsEffectColorBlender.h"

#include <fmt/format.h>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"

namespace Zorvan::Proc {

namespace {

using BlendMode = SettingsEffectColorBlender::BlendMode;

// Every spelling saved projects and presets use for a mode.
const SpellingTable<BlendMode>& BlendModeSpellings()
{
    static const SpellingTable<BlendMode> table{
        {"default", BlendMode::Normal},
        {"normal", BlendMode::Normal},
        {"src-over", BlendMode::Normal},
        {"source-over", BlendMode::Normal},
        {"darken", BlendMode::Darken},
        {"multiply", BlendMode::Multiply},
        {"color-burn", BlendMode::ColorBurn},
        {"linear-burn", BlendMode::LinearBurn},
        {"darker-color", BlendMode::DarkerColor},
        {"lighten", BlendMode::Lighten},
        {"screen", BlendMode::Screen},
        {"color-dodge", BlendMode::ColorDodge},
        {"linear-dodge", BlendMode::LinearDodge},
        {"lighter-color", BlendMode::LighterColor},
        {"overlay", BlendMode::Overlay},
        {"soft-light", BlendMode::SoftLight},
        {"hard-light", BlendMode::HardLight},
        {"vivid-light", BlendMode::VividLight},
        {"linear-light", BlendMode::LinearLight},
        {"pin-light", BlendMode::PinLight},
        {"hard-mix", BlendMode::HardMix},
        {"difference", BlendMode::Difference},
        {"exclusion", BlendMode::Exclusion},
        {"subtract", BlendMode::Subtract},
        {"divide", BlendMode::Divide},
        {"hue", BlendMode::Hue},
        {"saturation", BlendMode::Saturation},
        {"color", BlendMode::Color},
        {"luminosity", BlendMode::Luminosity},
    };
    return table;
}

void CheckComponent(float value, const char* message)
{
    if (value < 0.0F) {
        ThrowInvalidArgument(message);
    }
}

} // namespace

const std::string SettingsEffectColorBlender::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorBlender$$";

SettingsEffectColorBlender::SettingsEffectColorBlender(int x, int y, float intensity, BlendMode mode)
    : x(x)
    , y(y)
    , blendMode(mode)
{
    SetIntensity(intensity);
}

const std::string& SettingsEffectColorBlender::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorBlender::Clone() const
{
    return std::make_unique<SettingsEffectColorBlender>(*this);
}

bool SettingsEffectColorBlender::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorBlender&>(other);
}

bool SettingsEffectColorBlender::IsEmpty() const
{
    return intensity == 0.0F;
}

void SettingsEffectColorBlender::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const auto value = GetOption<int>(options, "x", "")) {
        x = *value;
    }
    if (const auto value = GetOption<int>(options, "y", "")) {
        y = *value;
    }
    if (const auto value = GetOption<float>(options, "intensity", "")) {
        SetIntensity(*value);
    }
    // Read after "intensity" into the same field, so an opacity in 0..255 wins.
    if (const auto value = GetOption<int>(options, "alpha", "")) {
        SetIntensity(static_cast<float>(*value) / 255.0F);
    }
    if (const std::string_view spelling = OptionRegexSearch(options, "blendMode", ""); !spelling.empty()) {
        const auto mode = FindSpelling(BlendModeSpellings(), spelling);
        if (!mode) {
            ThrowEffect(fmt::format("Unknown blend mode: {}", spelling));
        }
        blendMode = *mode;
    }
    const auto red = GetOption<float>(options, "r", "");
    const auto green = GetOption<float>(options, "g", "");
    const auto blue = GetOption<float>(options, "b", "");
    const auto alpha = GetOption<float>(options, "a", "");
    if (red && green && blue && alpha) {
        SetBaseColor(ColorF{*red, *green, *blue, *alpha});
    }
}

bool SettingsEffectColorBlender::operator==(const SettingsEffectColorBlender& other) const
{
    return x == other.x && y == other.y && intensity == other.intensity && blendMode == other.blendMode &&
           baseColor == other.baseColor;
}

void SettingsEffectColorBlender::SetIntensity(float value)
{
    if (value < 0.0F || value > 1.0F) {
        ThrowInvalidArgument("Invalid intensity value");
    }
    intensity = value;
}

void SettingsEffectColorBlender::SetBaseColor(const std::optional<ColorF>& color)
{
    if (color) {
        CheckComponent(color->red, "Invalid red base color component");
        CheckComponent(color->green, "Invalid green base color component");
        CheckComponent(color->blue, "Invalid blue base color component");
        CheckComponent(color->alpha, "Invalid alpha base color component");
    }
    baseColor = color;
}

void SettingsEffectColorBlender::SetX(int value)
{
    x = value;
}

void SettingsEffectColorBlender::SetY(int value)
{
    y = value;
}

void SettingsEffectColorBlender::SetBlendMode(BlendMode mode)
{
    blendMode = mode;
}

int SettingsEffectColorBlender::GetX() const
{
    return x;
}

int SettingsEffectColorBlender::GetY() const
{
    return y;
}

float SettingsEffectColorBlender::GetIntensity() const
{
    return intensity;
}

SettingsEffectColorBlender::BlendMode SettingsEffectColorBlender::GetBlendMode() const
{
    return blendMode;
}

const std::optional<ColorF>& SettingsEffectColorBlender::GetBaseColor() const
{
    return baseColor;
}

} // namespace Zorvan::Proc

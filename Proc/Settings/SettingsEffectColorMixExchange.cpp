#include "Proc/Settings/SettingsEffectColorMixExchange.h"

#include <cmath>
#include <cstdint>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

// One channel of the exchange colour: the byte times the intensity, truncated toward zero
// to a 32-bit int. Out-of-range products saturate and NaN gives 0, as the float-to-int
// conversion of the engine's 64-bit Arm devices does; a negative channel keeps its
// two's-complement bits, which the unmasked packing then carries into the higher channels.
std::uint32_t ScaledChannel(Color color, unsigned shift, float intensity)
{
    const float product = static_cast<float>((color >> shift) & 0xFFU) * intensity;
    std::int32_t value = 0;
    if (std::isnan(product)) {
        value = 0;
    } else if (product >= 2147483648.0F) {
        value = INT32_MAX;
    } else if (product <= -2147483648.0F) {
        value = INT32_MIN;
    } else {
        value = static_cast<std::int32_t>(product);
    }
    return static_cast<std::uint32_t>(value);
}

} // namespace

const std::string SettingsEffectColorMixExchange::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorMixExchange$$";

const std::string& SettingsEffectColorMixExchange::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorMixExchange::Clone() const
{
    return std::make_unique<SettingsEffectColorMixExchange>(*this);
}

void SettingsEffectColorMixExchange::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"intensity", "red", "green", "blue"});
    MapForm::Read(map, "intensity", intensity);
    Color newColor = color;
    const auto readByte = [&map, &newColor](const char* key, unsigned shift) {
        if (const auto value = MapForm::Find<int>(map, key)) {
            newColor = (newColor & ~(0xFFU << shift)) | ((static_cast<Color>(*value) & 0xFFU) << shift);
        }
    };
    readByte("red", 0U);
    readByte("green", 8U);
    readByte("blue", 16U);
    color = newColor;
}

void SettingsEffectColorMixExchange::SetIntensity(float value)
{
    intensity = value;
}

float SettingsEffectColorMixExchange::GetIntensity() const
{
    return intensity;
}

Color SettingsEffectColorMixExchange::GetColor() const
{
    return color;
}

Color SettingsEffectColorMixExchange::GetExchangeColor() const
{
    return ScaledChannel(color, 0U, intensity) | (ScaledChannel(color, 8U, intensity) << 8U) |
           (ScaledChannel(color, 16U, intensity) << 16U);
}

} // namespace Zorvan::Proc

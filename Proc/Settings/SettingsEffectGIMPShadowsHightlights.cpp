#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

constexpr FloatRange::Range kAmountRange{-100.0F, 100.0F}; // shadows and highlights
constexpr FloatRange::Range kPercentRange{0.0F, 100.0F};   // colour corrections and compress
constexpr FloatRange::Range kWhitepointRange{-10.0F, 10.0F};
constexpr FloatRange::Range kIntensityRange{0.0F, 1.0F};

} // namespace

const std::string SettingsEffectGIMPShadowsHightlights::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPShadowsHightlights";

const std::string SettingsEffectGIMPShadowsHightlights::s_shadows ZORVAN_INIT_STRINGS = "shadows";
const std::string SettingsEffectGIMPShadowsHightlights::s_shadowsColorCorrect ZORVAN_INIT_STRINGS = "shadows-correct";
const std::string SettingsEffectGIMPShadowsHightlights::s_highlights ZORVAN_INIT_STRINGS = "highlights";
const std::string SettingsEffectGIMPShadowsHightlights::s_highlightsColorCorrect ZORVAN_INIT_STRINGS =
    "highlights-correct";
const std::string SettingsEffectGIMPShadowsHightlights::s_whitepoint ZORVAN_INIT_STRINGS = "whitepoint";
const std::string SettingsEffectGIMPShadowsHightlights::s_compress ZORVAN_INIT_STRINGS = "compress";
const std::string SettingsEffectGIMPShadowsHightlights::s_intensity ZORVAN_INIT_STRINGS = "intensity";

const std::vector<std::string> SettingsEffectGIMPShadowsHightlights::s_params ZORVAN_INIT_PARAMS = {
    s_shadows, s_shadowsColorCorrect, s_highlights, s_highlightsColorCorrect, s_whitepoint, s_compress, s_intensity};

const std::string& SettingsEffectGIMPShadowsHightlights::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPShadowsHightlights::Clone() const
{
    return std::make_unique<SettingsEffectGIMPShadowsHightlights>(*this);
}

bool SettingsEffectGIMPShadowsHightlights::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGIMPShadowsHightlights&>(other);
}

bool SettingsEffectGIMPShadowsHightlights::IsEmpty() const
{
    return (NearZero(shadows) && NearlyEqual(shadowsColorCorrect, 100.0F) && NearZero(highlights) &&
            NearlyEqual(highlightsColorCorrect, 50.0F) && NearZero(whitepoint) && NearlyEqual(compress, 50.0F)) ||
           NearZero(intensity);
}

void SettingsEffectGIMPShadowsHightlights::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    // Unlike the setters, a preset value out of range is refused, not clamped.
    const auto read = [&map](const std::string& key, const FloatRange::Range& range, float& field) {
        if (const auto value = MapForm::Find<float>(map, key)) {
            FloatRange::StoreOrThrow(*value, range, FloatRange::kInvalidValue, field);
        }
    };
    read(s_shadows, kAmountRange, shadows);
    read(s_shadowsColorCorrect, kPercentRange, shadowsColorCorrect);
    read(s_highlights, kAmountRange, highlights);
    read(s_highlightsColorCorrect, kPercentRange, highlightsColorCorrect);
    read(s_whitepoint, kWhitepointRange, whitepoint);
    read(s_compress, kPercentRange, compress);
    read(s_intensity, kIntensityRange, intensity);
}

bool SettingsEffectGIMPShadowsHightlights::operator==(const SettingsEffectGIMPShadowsHightlights& other) const
{
    return NearlyEqual(shadows, other.shadows) && NearlyEqual(shadowsColorCorrect, other.shadowsColorCorrect) &&
           NearlyEqual(highlights, other.highlights) &&
           NearlyEqual(highlightsColorCorrect, other.highlightsColorCorrect) &&
           NearlyEqual(whitepoint, other.whitepoint) && NearlyEqual(compress, other.compress) &&
           NearlyEqual(intensity, other.intensity);
}

bool SettingsEffectGIMPShadowsHightlights::operator!=(const SettingsEffectGIMPShadowsHightlights& other) const
{
    return !(*this == other);
}

void SettingsEffectGIMPShadowsHightlights::SetShadows(float value)
{
    shadows = FloatRange::Clamp(value, kAmountRange);
}

void SettingsEffectGIMPShadowsHightlights::SetShadowsColorCorrect(float value)
{
    shadowsColorCorrect = FloatRange::Clamp(value, kPercentRange);
}

void SettingsEffectGIMPShadowsHightlights::SetHighlights(float value)
{
    highlights = FloatRange::Clamp(value, kAmountRange);
}

void SettingsEffectGIMPShadowsHightlights::SetHighlightsColorCorrect(float value)
{
    highlightsColorCorrect = FloatRange::Clamp(value, kPercentRange);
}

void SettingsEffectGIMPShadowsHightlights::SetWhitepoint(float value)
{
    whitepoint = FloatRange::Clamp(value, kWhitepointRange);
}

void SettingsEffectGIMPShadowsHightlights::SetCompress(float value)
{
    compress = FloatRange::Clamp(value, kPercentRange);
}

void SettingsEffectGIMPShadowsHightlights::SetIntensity(float value)
{
    intensity = FloatRange::Clamp(value, kIntensityRange);
}

float SettingsEffectGIMPShadowsHightlights::GetShadows() const
{
    return shadows;
}

float SettingsEffectGIMPShadowsHightlights::GetShadowsColorCorrect() const
{
    return shadowsColorCorrect;
}

float SettingsEffectGIMPShadowsHightlights::GetHighlights() const
{
    return highlights;
}

float SettingsEffectGIMPShadowsHightlights::GetHighlightsColorCorrect() const
{
    return highlightsColorCorrect;
}

float SettingsEffectGIMPShadowsHightlights::GetWhitepoint() const
{
    return whitepoint;
}

float SettingsEffectGIMPShadowsHightlights::GetCompress() const
{
    return compress;
}

float SettingsEffectGIMPShadowsHightlights::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

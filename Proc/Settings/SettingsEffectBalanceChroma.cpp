#include "Proc/Settings/SettingsEffectBalanceChroma.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

namespace {

// Every shift is clamped to -100..100.
int ClampShift(int value)
{
    return Saturate(value, -100, 100);
}

} // namespace

const std::string SettingsEffectBalanceChroma::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BALANCE_CHROMA";

const std::string SettingsEffectBalanceChroma::s_shadowsRed ZORVAN_INIT_STRINGS = "shadows-red";
const std::string SettingsEffectBalanceChroma::s_shadowsGreen ZORVAN_INIT_STRINGS = "shadows-green";
const std::string SettingsEffectBalanceChroma::s_shadowsBlue ZORVAN_INIT_STRINGS = "shadows-blue";
const std::string SettingsEffectBalanceChroma::s_midtonesRed ZORVAN_INIT_STRINGS = "midtones-red";
const std::string SettingsEffectBalanceChroma::s_midtonesGreen ZORVAN_INIT_STRINGS = "midtones-green";
const std::string SettingsEffectBalanceChroma::s_midtonesBlue ZORVAN_INIT_STRINGS = "midtones-blue";
const std::string SettingsEffectBalanceChroma::s_highlightsRed ZORVAN_INIT_STRINGS = "highlights-red";
const std::string SettingsEffectBalanceChroma::s_highlightsGreen ZORVAN_INIT_STRINGS = "highlights-green";
const std::string SettingsEffectBalanceChroma::s_highlightsBlue ZORVAN_INIT_STRINGS = "highlights-blue";
const std::string SettingsEffectBalanceChroma::s_preserveLuminosity ZORVAN_INIT_STRINGS = "preserve-luminosity";

const std::vector<std::string> SettingsEffectBalanceChroma::s_params ZORVAN_INIT_PARAMS = {
    s_shadowsRed,   s_shadowsGreen,  s_shadowsBlue,     s_midtonesRed,    s_midtonesGreen,
    s_midtonesBlue, s_highlightsRed, s_highlightsGreen, s_highlightsBlue, s_preserveLuminosity,
};

const std::string& SettingsEffectBalanceChroma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBalanceChroma::Clone() const
{
    return std::make_unique<SettingsEffectBalanceChroma>(*this);
}

bool SettingsEffectBalanceChroma::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectBalanceChroma&>(other);
}

bool SettingsEffectBalanceChroma::IsEmpty() const
{
    return shadowsRed == 0 && shadowsGreen == 0 && shadowsBlue == 0 && midtonesRed == 0 && midtonesGreen == 0 &&
           midtonesBlue == 0 && highlightsRed == 0 && highlightsGreen == 0 && highlightsBlue == 0;
}

void SettingsEffectBalanceChroma::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    // The nine ints clamped and stored, in the order of s_params, then the flag.
    const auto readShift = [&map](const std::string& key, int& field) {
        if (const auto value = MapForm::Find<int>(map, key)) {
            field = ClampShift(*value);
        }
    };
    readShift(s_shadowsRed, shadowsRed);
    readShift(s_shadowsGreen, shadowsGreen);
    readShift(s_shadowsBlue, shadowsBlue);
    readShift(s_midtonesRed, midtonesRed);
    readShift(s_midtonesGreen, midtonesGreen);
    readShift(s_midtonesBlue, midtonesBlue);
    readShift(s_highlightsRed, highlightsRed);
    readShift(s_highlightsGreen, highlightsGreen);
    readShift(s_highlightsBlue, highlightsBlue);
    MapForm::Read(map, s_preserveLuminosity, preserveLuminosity);
}

bool SettingsEffectBalanceChroma::operator==(const SettingsEffectBalanceChroma& other) const
{
    return shadowsRed == other.shadowsRed && shadowsGreen == other.shadowsGreen && shadowsBlue == other.shadowsBlue &&
           midtonesRed == other.midtonesRed && midtonesGreen == other.midtonesGreen &&
           midtonesBlue == other.midtonesBlue && highlightsRed == other.highlightsRed &&
           highlightsGreen == other.highlightsGreen && highlightsBlue == other.highlightsBlue &&
           preserveLuminosity == other.preserveLuminosity;
}

void SettingsEffectBalanceChroma::SetShadowsRed(int value)
{
    shadowsRed = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetShadowsGreen(int value)
{
    shadowsGreen = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetShadowsBlue(int value)
{
    shadowsBlue = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetMidtonesRed(int value)
{
    midtonesRed = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetMidtonesGreen(int value)
{
    midtonesGreen = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetMidtonesBlue(int value)
{
    midtonesBlue = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetHighlightsRed(int value)
{
    highlightsRed = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetHighlightsGreen(int value)
{
    highlightsGreen = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetHighlightsBlue(int value)
{
    highlightsBlue = ClampShift(value);
}

void SettingsEffectBalanceChroma::SetShadows(const std::array<int, 3>& values)
{
    SetShadowsRed(values[0]);
    SetShadowsGreen(values[1]);
    SetShadowsBlue(values[2]);
}

void SettingsEffectBalanceChroma::SetMidtones(const std::array<int, 3>& values)
{
    SetMidtonesRed(values[0]);
    SetMidtonesGreen(values[1]);
    SetMidtonesBlue(values[2]);
}

void SettingsEffectBalanceChroma::SetHighlights(const std::array<int, 3>& values)
{
    SetHighlightsRed(values[0]);
    SetHighlightsGreen(values[1]);
    SetHighlightsBlue(values[2]);
}

void SettingsEffectBalanceChroma::SetPreserveLuminosity(bool preserve)
{
    preserveLuminosity = preserve;
}

int SettingsEffectBalanceChroma::GetShadowsRed() const
{
    return shadowsRed;
}

int SettingsEffectBalanceChroma::GetShadowsGreen() const
{
    return shadowsGreen;
}

int SettingsEffectBalanceChroma::GetShadowsBlue() const
{
    return shadowsBlue;
}

int SettingsEffectBalanceChroma::GetMidtonesRed() const
{
    return midtonesRed;
}

int SettingsEffectBalanceChroma::GetMidtonesGreen() const
{
    return midtonesGreen;
}

int SettingsEffectBalanceChroma::GetMidtonesBlue() const
{
    return midtonesBlue;
}

int SettingsEffectBalanceChroma::GetHighlightsRed() const
{
    return highlightsRed;
}

int SettingsEffectBalanceChroma::GetHighlightsGreen() const
{
    return highlightsGreen;
}

int SettingsEffectBalanceChroma::GetHighlightsBlue() const
{
    return highlightsBlue;
}

bool SettingsEffectBalanceChroma::GetPreserveLuminosity() const
{
    return preserveLuminosity;
}

} // namespace Zorvan::Proc

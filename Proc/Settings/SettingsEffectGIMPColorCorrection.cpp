#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

constexpr FloatRange::Range kRange{-1.0F, 1.0F};

} // namespace

const std::string SettingsEffectGIMPColorCorrection::CLASS_ID ZORVAN_INIT_STRINGS = "EffectGIMPColorCorrection";

const std::string SettingsEffectGIMPColorCorrection::s_brightness ZORVAN_INIT_STRINGS = "brightness";
const std::string SettingsEffectGIMPColorCorrection::s_contrast ZORVAN_INIT_STRINGS = "contrast";

const std::vector<std::string> SettingsEffectGIMPColorCorrection::s_params ZORVAN_INIT_PARAMS = {s_brightness,
                                                                                                 s_contrast};

const std::string& SettingsEffectGIMPColorCorrection::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectGIMPColorCorrection::Clone() const
{
    return std::make_unique<SettingsEffectGIMPColorCorrection>(*this);
}

bool SettingsEffectGIMPColorCorrection::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectGIMPColorCorrection&>(other);
}

bool SettingsEffectGIMPColorCorrection::IsEmpty() const
{
    return brightness == 0.0F && contrast == 0.0F;
}

void SettingsEffectGIMPColorCorrection::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    if (const auto value = MapForm::Find<float>(map, s_brightness)) {
        SetBrightness(*value);
    }
    if (const auto value = MapForm::Find<float>(map, s_contrast)) {
        SetContrast(*value);
    }
}

bool SettingsEffectGIMPColorCorrection::operator==(const SettingsEffectGIMPColorCorrection& other) const
{
    return NearlyEqual(brightness, other.brightness) && NearlyEqual(contrast, other.contrast);
}

void SettingsEffectGIMPColorCorrection::SetBrightness(float value)
{
    brightness = FloatRange::Clamp(value, kRange);
}

void SettingsEffectGIMPColorCorrection::SetContrast(float value)
{
    contrast = FloatRange::Clamp(value, kRange);
}

float SettingsEffectGIMPColorCorrection::GetBrightness() const
{
    return brightness;
}

float SettingsEffectGIMPColorCorrection::GetContrast() const
{
    return contrast;
}

} // namespace Zorvan::Proc

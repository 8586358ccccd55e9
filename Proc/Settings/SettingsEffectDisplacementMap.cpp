#include "Proc/Settings/SettingsEffectDisplacementMap.h"

#include "Proc/Settings/FloatRange.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

constexpr FloatRange::Range kShiftRange{-1.0F, 1.0F};

} // namespace

const std::string SettingsEffectDisplacementMap::CLASS_ID ZORVAN_INIT_STRINGS = "EffectDisplacementMap";

const std::string SettingsEffectDisplacementMap::s_xShift ZORVAN_INIT_STRINGS = "x-shift";
const std::string SettingsEffectDisplacementMap::s_yShift ZORVAN_INIT_STRINGS = "y-shift";
const std::string SettingsEffectDisplacementMap::s_intensity ZORVAN_INIT_STRINGS = "intensity";

const std::vector<std::string> SettingsEffectDisplacementMap::s_params ZORVAN_INIT_PARAMS = {s_xShift, s_yShift,
                                                                                             s_intensity};

const std::string& SettingsEffectDisplacementMap::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDisplacementMap::Clone() const
{
    return std::make_unique<SettingsEffectDisplacementMap>(*this);
}

bool SettingsEffectDisplacementMap::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectDisplacementMap&>(other);
}

bool SettingsEffectDisplacementMap::IsEmpty() const
{
    return xShift == 0.0F && yShift == 0.0F && intensity == 1;
}

void SettingsEffectDisplacementMap::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    // Both shifts refuse with the short text, not the setters' own.
    if (const auto value = MapForm::Find<float>(map, s_xShift)) {
        SetNewValue(*value, kShiftRange, FloatRange::kInvalidValue, xShift);
    }
    if (const auto value = MapForm::Find<float>(map, s_yShift)) {
        SetNewValue(*value, kShiftRange, FloatRange::kInvalidValue, yShift);
    }
    if (const auto value = MapForm::Find<unsigned long>(map, s_intensity)) {
        intensity = static_cast<std::uint32_t>(*value);
    }
}

bool SettingsEffectDisplacementMap::operator==(const SettingsEffectDisplacementMap& other) const
{
    return xShift == other.xShift && yShift == other.yShift && intensity == other.intensity;
}

void SettingsEffectDisplacementMap::SetNewValue(float value, const std::pair<float, float>& range,
                                                const std::string& message, float& target)
{
    FloatRange::StoreOrThrow(value, range, message, target);
}

void SettingsEffectDisplacementMap::SetXShift(float value)
{
    SetNewValue(value, kShiftRange, "Invalid value for X shift", xShift);
}

void SettingsEffectDisplacementMap::SetYShift(float value)
{
    // "Yshift" without the blank: callers match the text as it has always read.
    SetNewValue(value, kShiftRange, "Invalid value for Yshift", yShift);
}

void SettingsEffectDisplacementMap::SetIntensity(unsigned int value)
{
    intensity = value;
}

float SettingsEffectDisplacementMap::GetXShift() const
{
    return xShift;
}

float SettingsEffectDisplacementMap::GetYShift() const
{
    return yShift;
}

unsigned int SettingsEffectDisplacementMap::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

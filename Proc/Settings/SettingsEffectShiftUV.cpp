#include "Proc/Settings/SettingsEffectShiftUV.h"

#include <cmath>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectShiftUV::CLASS_ID ZORVAN_INIT_STRINGS = "EffectShiftUV";

const std::string& SettingsEffectShiftUV::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectShiftUV::Clone() const
{
    return std::make_unique<SettingsEffectShiftUV>(*this);
}

bool SettingsEffectShiftUV::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectShiftUV&>(other);
}

bool SettingsEffectShiftUV::IsEmpty() const
{
    return NearZero(blueRed) && NearZero(magentaGreen);
}

void SettingsEffectShiftUV::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"shiftBR", "shiftMG"});
    MapForm::Read(map, "shiftBR", blueRed);
    MapForm::Read(map, "shiftMG", magentaGreen);
}

bool SettingsEffectShiftUV::operator==(const SettingsEffectShiftUV& other) const
{
    return blueRed == other.blueRed && magentaGreen == other.magentaGreen;
}

void SettingsEffectShiftUV::SetShiftBlueRed(float value)
{
    blueRed = value;
}

void SettingsEffectShiftUV::SetShiftMagentaGreen(float value)
{
    magentaGreen = value;
}

float SettingsEffectShiftUV::GetBlueRed() const
{
    return blueRed;
}

float SettingsEffectShiftUV::GetMagentaGreen() const
{
    return magentaGreen;
}

std::pair<int, int> SettingsEffectShiftUV::CalculateShift() const
{
    constexpr double sqrt2 = 1.4142135623730951;
    const float a = blueRed * 255.0F;
    const float b = magentaGreen * 255.0F;
    const float sum = -(a + b);
    const float difference = a - b;
    return {TruncateToIntSaturated(std::ceil(static_cast<double>(sum) / sqrt2)),
            TruncateToIntSaturated(std::ceil(static_cast<double>(difference) / sqrt2))};
}

} // namespace Zorvan::Proc

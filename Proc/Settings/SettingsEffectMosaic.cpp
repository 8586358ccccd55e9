#include "Proc/Settings/SettingsEffectMosaic.h"

#include <cmath>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

// All steps in float, the multiplication and subtraction fused, as the renderer computes
// the amounts.
int ComputeAmount(int n, int amount, float intensity)
{
    const float p = std::pow(intensity, 0.2F);
    const float extent = static_cast<float>(n);
    const float span = extent - static_cast<float>(amount);
    const float result = std::fma(-span, p, extent);
    if (!(result > 1.0F)) {
        return 1; // not above 1, NaN included
    }
    return TruncateToIntSaturated(result); // truncation toward zero; beyond int saturated
}

} // namespace

const std::string SettingsEffectMosaic::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMosaic$$";

const std::string& SettingsEffectMosaic::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMosaic::Clone() const
{
    return std::make_unique<SettingsEffectMosaic>(*this);
}

void SettingsEffectMosaic::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"type", "amountVer", "amountHor", "intensity"});
    MapForm::Read(map, "type", type);
    MapForm::Read(map, "amountVer", amountVer);
    MapForm::Read(map, "amountHor", amountHor);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectMosaic::SetAmount(int newAmountHor, int newAmountVer)
{
    amountHor = newAmountHor;
    amountVer = newAmountVer;
}

void SettingsEffectMosaic::SetType(int value)
{
    type = value;
}

void SettingsEffectMosaic::SetIntensity(float value)
{
    intensity = value;
}

int SettingsEffectMosaic::GetType() const
{
    return type;
}

float SettingsEffectMosaic::GetIntensity() const
{
    return intensity;
}

int SettingsEffectMosaic::GetAmountVer(int n) const
{
    return ComputeAmount(n, amountVer, intensity);
}

int SettingsEffectMosaic::GetAmountHor(int n) const
{
    return ComputeAmount(n, amountHor, intensity);
}

int SettingsEffectMosaic::GetAmountVer() const
{
    return amountVer;
}

int SettingsEffectMosaic::GetAmountHor() const
{
    return amountHor;
}

} // namespace Zorvan::Proc

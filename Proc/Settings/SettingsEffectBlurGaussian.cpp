#include "Proc/Settings/SettingsEffectBlurGaussian.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBlurGaussian::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectBlurGaussian$$";

const std::string& SettingsEffectBlurGaussian::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBlurGaussian::Clone() const
{
    return std::make_unique<SettingsEffectBlurGaussian>(*this);
}

void SettingsEffectBlurGaussian::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"scale", "fast"});
    // "scale" and "fast" exclude each other; given both, only the scale is read.
    if (const auto found = map.find("scale"); found != map.end()) {
        scale = std::stod(found->second);
        return;
    }
    if (const auto found = map.find("fast"); found != map.end()) {
        fast = std::stoi(found->second, nullptr, 10) != 0;
    }
}

void SettingsEffectBlurGaussian::SetScale(double value)
{
    scale = value;
}

double SettingsEffectBlurGaussian::GetScale() const
{
    return scale;
}

void SettingsEffectBlurGaussian::SetFast(bool value)
{
    fast = value;
}

bool SettingsEffectBlurGaussian::GetFast() const
{
    return fast;
}

} // namespace Zorvan::Proc

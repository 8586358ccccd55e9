#include "Proc/Settings/SettingsEffectMotionBlur.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectMotionBlur::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMotionBlur$$";

const std::string& SettingsEffectMotionBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMotionBlur::Clone() const
{
    return std::make_unique<SettingsEffectMotionBlur>(*this);
}

void SettingsEffectMotionBlur::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"scale"});
    MapForm::Read(map, "scale", scale);
}

void SettingsEffectMotionBlur::SetScale(double value)
{
    scale = value;
}

double SettingsEffectMotionBlur::GetScale() const
{
    return scale;
}

} // namespace Zorvan::Proc

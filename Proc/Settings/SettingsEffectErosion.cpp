#include "Proc/Settings/SettingsEffectErosion.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectErosion::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectErosion$$";

const std::string& SettingsEffectErosion::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectErosion::Clone() const
{
    return std::make_unique<SettingsEffectErosion>(*this);
}

void SettingsEffectErosion::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"mode", "radius"});
    MapForm::Read(map, "mode", mode); // std::stoi, any number stored as it is
    MapForm::Read(map, "radius", radius);
}

void SettingsEffectErosion::SetParams(double newRadius, Types newMode)
{
    radius = newRadius;
    mode = newMode;
}

double SettingsEffectErosion::GetRadius() const
{
    return radius;
}

SettingsEffectErosion::Types SettingsEffectErosion::GetMode() const
{
    return mode;
}

} // namespace Zorvan::Proc

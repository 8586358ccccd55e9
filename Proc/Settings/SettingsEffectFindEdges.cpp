#include "Proc/Settings/SettingsEffectFindEdges.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFindEdges::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectFindEdges$$";

const std::string& SettingsEffectFindEdges::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFindEdges::Clone() const
{
    return std::make_unique<SettingsEffectFindEdges>(*this);
}

void SettingsEffectFindEdges::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The key order (blend, sensibility, type) is not the field order: saved presets list the
    // keys so.
    const auto map = GetOptionsMap(options, {"blend", "sensibility", "type"});
    MapForm::Read(map, "blend", blend);
    MapForm::Read(map, "sensibility", sensibility);
    MapForm::Read(map, "type", type); // std::stoi, any number stored as it is
}

void SettingsEffectFindEdges::SetParams(Type newType, double newBlend, double newSensibility)
{
    type = newType;
    blend = newBlend;
    sensibility = newSensibility;
}

SettingsEffectFindEdges::Type SettingsEffectFindEdges::GetType() const
{
    return type;
}

double SettingsEffectFindEdges::GetBlend() const
{
    return blend;
}

double SettingsEffectFindEdges::GetSensibility() const
{
    return sensibility;
}

} // namespace Zorvan::Proc

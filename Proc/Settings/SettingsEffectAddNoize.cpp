#include "Proc/Settings/SettingsEffectAddNoize.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAddNoize::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectAddNoize$$";

const std::string& SettingsEffectAddNoize::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAddNoize::Clone() const
{
    return std::make_unique<SettingsEffectAddNoize>(*this);
}

void SettingsEffectAddNoize::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"level", "type"});
    MapForm::Read(map, "level", level);
    MapForm::Read(map, "type", type);
}

void SettingsEffectAddNoize::SetLevel(double value)
{
    // Adding +0.0 turns -0.0 into +0.0, so a cleared level reads and saves as plain 0.
    level = Saturate(value, 0.0, 1.0) + 0.0;
}

void SettingsEffectAddNoize::SetType(int value)
{
    type = value;
}

double SettingsEffectAddNoize::GetLevel() const
{
    return level;
}

int SettingsEffectAddNoize::GetType() const
{
    return type;
}

} // namespace Zorvan::Proc

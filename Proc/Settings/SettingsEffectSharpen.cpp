#include "Proc/Settings/SettingsEffectSharpen.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectSharpen::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Sharpen$$";

const std::string& SettingsEffectSharpen::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectSharpen::Clone() const
{
    return std::make_unique<SettingsEffectSharpen>(*this);
}

bool SettingsEffectSharpen::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectSharpen&>(other);
}

void SettingsEffectSharpen::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"level"});
    MapForm::Read(map, "level", level);
}

bool SettingsEffectSharpen::operator==(const SettingsEffectSharpen& other) const
{
    return level == other.level;
}

void SettingsEffectSharpen::SetLevel(double value)
{
    level = value;
}

double SettingsEffectSharpen::GetLevel() const
{
    return level;
}

} // namespace Zorvan::Proc

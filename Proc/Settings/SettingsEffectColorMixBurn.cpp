#include "Proc/Settings/SettingsEffectColorMixBurn.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectColorMixBurn::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectColorMixBurn$$";

const std::string& SettingsEffectColorMixBurn::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorMixBurn::Clone() const
{
    return std::make_unique<SettingsEffectColorMixBurn>(*this);
}

bool SettingsEffectColorMixBurn::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorMixBurn&>(other);
}

void SettingsEffectColorMixBurn::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"strength"});
    MapForm::Read(map, "strength", strength);
}

bool SettingsEffectColorMixBurn::operator==(const SettingsEffectColorMixBurn& other) const
{
    return strength == other.strength;
}

void SettingsEffectColorMixBurn::SetStrength(double value)
{
    strength = value;
}

double SettingsEffectColorMixBurn::GetStrength() const
{
    return strength;
}

} // namespace Zorvan::Proc

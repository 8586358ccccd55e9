#include "Proc/Settings/SettingsEffectLUT.h"

#include <utility>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectLUT::CLASS_ID ZORVAN_INIT_STRINGS = "EffectLUT";

const std::string& SettingsEffectLUT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectLUT::Clone() const
{
    return std::make_unique<SettingsEffectLUT>(*this);
}

bool SettingsEffectLUT::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectLUT&>(other);
}

bool SettingsEffectLUT::IsEmpty() const
{
    return !table || !table->IsValid();
}

void SettingsEffectLUT::Deserialize(const std::string& /*options*/) {}

bool SettingsEffectLUT::operator==(const SettingsEffectLUT& other) const
{
    if (!table || !other.table) {
        return !table && !other.table;
    }
    return *table == *other.table && mode == other.mode;
}

bool SettingsEffectLUT::operator!=(const SettingsEffectLUT& other) const
{
    return !(*this == other);
}

void SettingsEffectLUT::SetTable(std::shared_ptr<LUT::LUTTable> value)
{
    table = std::move(value);
}

const std::shared_ptr<LUT::LUTTable>& SettingsEffectLUT::GetTable() const
{
    return table;
}

std::array<float, 3> SettingsEffectLUT::GetPoint(unsigned long r, unsigned long g, unsigned long b) const
{
    return table->GetValue(r, g, b);
}

std::size_t SettingsEffectLUT::GetSize() const
{
    return table->GetSize();
}

void SettingsEffectLUT::SetMode(InterpolateMode value)
{
    if (static_cast<std::uint32_t>(value) > 2U) {
        ThrowEffect("Invalid interpolate mode");
    }
    mode = value;
}

SettingsEffectLUT::InterpolateMode SettingsEffectLUT::GetMode() const
{
    return mode;
}

} // namespace Zorvan::Proc

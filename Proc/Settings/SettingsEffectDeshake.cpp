#include "Proc/Settings/SettingsEffectDeshake.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDeshake::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DESHAKE";

const std::string& SettingsEffectDeshake::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDeshake::Clone() const
{
    return std::make_unique<SettingsEffectDeshake>(*this);
}

bool SettingsEffectDeshake::operator==(const SettingsEffectDeshake& other) const
{
    return rangeX == other.rangeX && rangeY == other.rangeY;
}

void SettingsEffectDeshake::SetRange(std::int32_t x, std::int32_t y)
{
    rangeX = x;
    rangeY = y;
}

void SettingsEffectDeshake::SetEdgeMode(std::int32_t value)
{
    edgeMode = value;
}

std::int32_t SettingsEffectDeshake::GetRangeX() const
{
    return rangeX;
}

std::int32_t SettingsEffectDeshake::GetRangeY() const
{
    return rangeY;
}

std::int32_t SettingsEffectDeshake::GetEdgeMode() const
{
    return edgeMode;
}

} // namespace Zorvan::Proc

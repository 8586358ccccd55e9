#include "Proc/Settings/SettingsEffectTranspose.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTranspose::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_TRANSPOSE";

SettingsEffectTranspose::SettingsEffectTranspose(Rotation rotation)
{
    SetRotation(rotation);
}

const std::string& SettingsEffectTranspose::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTranspose::Clone() const
{
    return std::make_unique<SettingsEffectTranspose>(*this);
}

void SettingsEffectTranspose::SetRotation(Rotation value)
{
    rotation = static_cast<Rotation>(static_cast<std::int32_t>(value) % 4);
    UpdateMatrix();
}

void SettingsEffectTranspose::AddAngle90()
{
    rotation = static_cast<Rotation>((static_cast<std::int32_t>(rotation) + 1) % 4);
    UpdateMatrix();
}

void SettingsEffectTranspose::SubAngle90()
{
    rotation = static_cast<Rotation>((static_cast<std::int32_t>(rotation) + 3) % 4);
    UpdateMatrix();
}

bool SettingsEffectTranspose::IsOddSizeAllowed() const
{
    return oddSizeAllowed;
}

std::int32_t SettingsEffectTranspose::GetMode() const
{
    return mode;
}

std::uint64_t SettingsEffectTranspose::GetSource() const
{
    return source;
}

const Core::Matrix3x3& SettingsEffectTranspose::GetMatrix() const
{
    return matrix;
}

double SettingsEffectTranspose::GetScale() const
{
    return scale;
}

SettingsEffectTranspose::Rotation SettingsEffectTranspose::GetRotation() const
{
    return rotation;
}

// Computed, not looked up: the renderer has always received the rounded values, such as
// 6.123233995736766e-17 for the cosine of a quarter turn.
void SettingsEffectTranspose::UpdateMatrix()
{
    const double angle = static_cast<std::int32_t>(rotation) * 1.5707963267948966;
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    matrix.m = {cosine, sine, 0.0, -sine, cosine, 0.0, 0.0, 0.0, 1.0};
}

} // namespace Zorvan::Proc

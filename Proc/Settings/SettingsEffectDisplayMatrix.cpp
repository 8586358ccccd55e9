#include "Proc/Settings/SettingsEffectDisplayMatrix.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDisplayMatrix::CLASS_ID ZORVAN_INIT_STRINGS = "EffectDisplayMatrix";

SettingsEffectDisplayMatrix::SettingsEffectDisplayMatrix(const Conf::DisplayMatrix& displayMatrix)
{
    SetMatrix(displayMatrix);
}

const std::string& SettingsEffectDisplayMatrix::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDisplayMatrix::Clone() const
{
    return std::make_unique<SettingsEffectDisplayMatrix>(*this);
}

void SettingsEffectDisplayMatrix::SetMatrix(const Conf::DisplayMatrix& value)
{
    displayMatrix = value;
    matrix = value.GetTransform();
}

bool SettingsEffectDisplayMatrix::IsOddSizeAllowed() const
{
    return oddSizeAllowed;
}

std::int32_t SettingsEffectDisplayMatrix::GetMode() const
{
    return mode;
}

std::uint64_t SettingsEffectDisplayMatrix::GetSource() const
{
    return source;
}

const Core::Matrix3x3& SettingsEffectDisplayMatrix::GetMatrix() const
{
    return matrix;
}

double SettingsEffectDisplayMatrix::GetScale() const
{
    return scale;
}

const Conf::DisplayMatrix& SettingsEffectDisplayMatrix::GetDisplayMatrix() const
{
    return displayMatrix;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectTransform.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTransform::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_TRANSFORM";

SettingsEffectTransform::SettingsEffectTransform(const Core::Matrix3x3& matrix, std::int32_t mode)
    : mode(mode)
    , matrix(matrix)
{
}

const std::string& SettingsEffectTransform::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTransform::Clone() const
{
    return std::make_unique<SettingsEffectTransform>(*this);
}

bool SettingsEffectTransform::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectTransform&>(other);
}

bool SettingsEffectTransform::IsEmpty() const
{
    return matrix == Core::Matrix3x3{} && source == 0;
}

bool SettingsEffectTransform::IsOddSizeAllowed() const
{
    return oddSizeAllowed;
}

std::int32_t SettingsEffectTransform::GetMode() const
{
    return mode;
}

bool SettingsEffectTransform::operator==(const SettingsEffectTransform& other) const
{
    if (source != 0 || other.source != 0) {
        return false;
    }
    return mode == other.mode && matrix == other.matrix && scale == other.scale;
}

void SettingsEffectTransform::SetSource(std::uint64_t value)
{
    source = value;
}

void SettingsEffectTransform::SetScale(double value)
{
    scale = value;
}

std::uint64_t SettingsEffectTransform::GetSource() const
{
    return source;
}

const Core::Matrix3x3& SettingsEffectTransform::GetMatrix() const
{
    return matrix;
}

double SettingsEffectTransform::GetScale() const
{
    return scale;
}

} // namespace Zorvan::Proc

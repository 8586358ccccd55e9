#include "Proc/Settings/SettingsEffectRotate.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRotate::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_ROTATE";

const std::string& SettingsEffectRotate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRotate::Clone() const
{
    return std::make_unique<SettingsEffectRotate>(*this);
}

bool SettingsEffectRotate::operator==(const SettingsEffectRotate& other) const
{
    if (angle != other.angle || type != other.type) {
        return false;
    }
    if (type == 1 && (outputWidth != other.outputWidth || outputHeight != other.outputHeight)) {
        return false;
    }
    return color == other.color && bilinear == other.bilinear;
}

void SettingsEffectRotate::SetAngle(double value)
{
    angle = value;
}

void SettingsEffectRotate::SetType(std::int32_t value)
{
    type = value;
}

void SettingsEffectRotate::SetOutputSize(std::uint32_t width, std::uint32_t height)
{
    outputWidth = width;
    outputHeight = height;
}

void SettingsEffectRotate::SetColor(Color value)
{
    color = value;
}

void SettingsEffectRotate::SetBilinear(bool value)
{
    bilinear = value;
}

double SettingsEffectRotate::GetAngle() const
{
    return angle;
}

std::int32_t SettingsEffectRotate::GetType() const
{
    return type;
}

std::uint32_t SettingsEffectRotate::GetOutputWidth() const
{
    return outputWidth;
}

std::uint32_t SettingsEffectRotate::GetOutputHeight() const
{
    return outputHeight;
}

Color SettingsEffectRotate::GetColor() const
{
    return color;
}

bool SettingsEffectRotate::GetBilinear() const
{
    return bilinear;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectBlur.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBlur::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_BLUR";

SettingsEffectBlur::SettingsEffectBlur()
    : SettingsEffectBlur(Algorithm::Box)
{
}

SettingsEffectBlur::SettingsEffectBlur(Algorithm newAlgorithm)
    : algorithm(newAlgorithm)
{
}

const std::string& SettingsEffectBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBlur::Clone() const
{
    return std::make_unique<SettingsEffectBlur>(*this);
}

bool SettingsEffectBlur::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectBlur&>(other);
}

bool SettingsEffectBlur::IsEmpty() const
{
    return radius == 0;
}

bool SettingsEffectBlur::operator==(const SettingsEffectBlur& other) const
{
    return algorithm == other.algorithm && kernelSize == other.kernelSize && sigmaX == other.sigmaX &&
           sigmaY == other.sigmaY && radius == other.radius && maxRadius == other.maxRadius && anchor == other.anchor &&
           borderMode == other.borderMode && toleranceX == other.toleranceX && toleranceY == other.toleranceY;
}

void SettingsEffectBlur::SetAlgorithm(Algorithm value)
{
    algorithm = value;
}

void SettingsEffectBlur::SetKernelSize(int value)
{
    kernelSize = value;
}

void SettingsEffectBlur::SetSigmaX(double value)
{
    sigmaX = value;
}

void SettingsEffectBlur::SetSigmaY(double value)
{
    sigmaY = value;
}

void SettingsEffectBlur::SetRadius(int value)
{
    radius = value;
}

void SettingsEffectBlur::SetMaxRadius(int value)
{
    maxRadius = value;
}

void SettingsEffectBlur::SetAnchor(int value)
{
    anchor = value;
}

void SettingsEffectBlur::SetBorderMode(int value)
{
    borderMode = value;
}

void SettingsEffectBlur::SetToleranceX(double value)
{
    toleranceX = value;
}

void SettingsEffectBlur::SetToleranceY(double value)
{
    toleranceY = value;
}

SettingsEffectBlur::Algorithm SettingsEffectBlur::GetAlgorithm() const
{
    return algorithm;
}

int SettingsEffectBlur::GetKernelSize() const
{
    return kernelSize;
}

double SettingsEffectBlur::GetSigmaX() const
{
    return sigmaX;
}

double SettingsEffectBlur::GetSigmaY() const
{
    return sigmaY;
}

int SettingsEffectBlur::GetRadius() const
{
    return radius;
}

int SettingsEffectBlur::GetMaxRadius() const
{
    return maxRadius;
}

int SettingsEffectBlur::GetAnchor() const
{
    return anchor;
}

int SettingsEffectBlur::GetBorderMode() const
{
    return borderMode;
}

double SettingsEffectBlur::GetToleranceX() const
{
    return toleranceX;
}

double SettingsEffectBlur::GetToleranceY() const
{
    return toleranceY;
}

} // namespace Zorvan::Proc

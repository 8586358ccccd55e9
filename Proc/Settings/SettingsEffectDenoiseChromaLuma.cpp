#include "Proc/Settings/SettingsEffectDenoiseChromaLuma.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

// Strengths that differ by less than this denoise alike, so the running stage is kept.
bool Close(double a, double b)
{
    return std::fabs(a - b) < 0.00001;
}

} // namespace

const std::string SettingsEffectDenoiseChromaLuma::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DENOISE_CHROMA_LUMA";

const std::string& SettingsEffectDenoiseChromaLuma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseChromaLuma::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseChromaLuma>(*this);
}

bool SettingsEffectDenoiseChromaLuma::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectDenoiseChromaLuma&>(other);
}

bool SettingsEffectDenoiseChromaLuma::IsEmpty() const
{
    return lumaSpatial == 0.0 && chromaSpatial == 0.0;
}

bool SettingsEffectDenoiseChromaLuma::operator==(const SettingsEffectDenoiseChromaLuma& other) const
{
    return Close(lumaSpatial, other.lumaSpatial) && Close(chromaSpatial, other.chromaSpatial) &&
           Close(lumaTemporal, other.lumaTemporal) && Close(chromaTemporal, other.chromaTemporal);
}

void SettingsEffectDenoiseChromaLuma::SetLumaSpatial(double value)
{
    lumaSpatial = value;
}

void SettingsEffectDenoiseChromaLuma::SetChromaSpatial(double value)
{
    chromaSpatial = value;
}

void SettingsEffectDenoiseChromaLuma::SetLumaTemporal(double value)
{
    lumaTemporal = value;
}

void SettingsEffectDenoiseChromaLuma::SetChromaTemporal(double value)
{
    chromaTemporal = value;
}

double SettingsEffectDenoiseChromaLuma::GetLumaSpatial() const
{
    return lumaSpatial;
}

double SettingsEffectDenoiseChromaLuma::GetChromaSpatial() const
{
    return chromaSpatial;
}

double SettingsEffectDenoiseChromaLuma::GetLumaTemporal() const
{
    return lumaTemporal;
}

double SettingsEffectDenoiseChromaLuma::GetChromaTemporal() const
{
    return chromaTemporal;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectDenoiseOvercompleteWavelet.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDenoiseOvercompleteWavelet::CLASS_ID ZORVAN_INIT_STRINGS =
    "EFFECT_DENOISE_OVERCOMPLETE_WAVELET";

const std::string& SettingsEffectDenoiseOvercompleteWavelet::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseOvercompleteWavelet::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseOvercompleteWavelet>(*this);
}

bool SettingsEffectDenoiseOvercompleteWavelet::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectDenoiseOvercompleteWavelet&>(other);
}

bool SettingsEffectDenoiseOvercompleteWavelet::IsEmpty() const
{
    return depth == 0 && lumaStrength == 0.0 && chromaStrength == 0.0;
}

bool SettingsEffectDenoiseOvercompleteWavelet::operator==(const SettingsEffectDenoiseOvercompleteWavelet& other) const
{
    return depth == other.depth && lumaStrength == other.lumaStrength && chromaStrength == other.chromaStrength;
}

void SettingsEffectDenoiseOvercompleteWavelet::SetDepth(int value)
{
    depth = value;
}

void SettingsEffectDenoiseOvercompleteWavelet::SetLumaStrength(double value)
{
    lumaStrength = value;
}

void SettingsEffectDenoiseOvercompleteWavelet::SetChromaStrength(double value)
{
    chromaStrength = value;
}

int SettingsEffectDenoiseOvercompleteWavelet::GetDepth() const
{
    return depth;
}

double SettingsEffectDenoiseOvercompleteWavelet::GetLumaStrength() const
{
    return lumaStrength;
}

double SettingsEffectDenoiseOvercompleteWavelet::GetChromaStrength() const
{
    return chromaStrength;
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectDenoiseDCT.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectDenoiseDCT::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DENOISE_DCT";

const std::string& SettingsEffectDenoiseDCT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectDenoiseDCT::Clone() const
{
    return std::make_unique<SettingsEffectDenoiseDCT>(*this);
}

bool SettingsEffectDenoiseDCT::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectDenoiseDCT&>(other);
}

bool SettingsEffectDenoiseDCT::IsEmpty() const
{
    return sigma == 0.0 || blockSizeBits == 0;
}

bool SettingsEffectDenoiseDCT::operator==(const SettingsEffectDenoiseDCT& other) const
{
    return sigma == other.sigma && overlap == other.overlap && blockSizeBits == other.blockSizeBits;
}

void SettingsEffectDenoiseDCT::SetSigma(double value)
{
    sigma = value;
}

void SettingsEffectDenoiseDCT::SetOverlap(int value)
{
    overlap = value;
}

void SettingsEffectDenoiseDCT::SetBlockSizeBits(int value)
{
    blockSizeBits = value;
}

double SettingsEffectDenoiseDCT::GetSigma() const
{
    return sigma;
}

int SettingsEffectDenoiseDCT::GetOverlap() const
{
    return overlap;
}

int SettingsEffectDenoiseDCT::GetBlockSizeBits() const
{
    return blockSizeBits;
}

} // namespace Zorvan::Proc

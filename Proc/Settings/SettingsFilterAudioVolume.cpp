#include "Proc/Settings/SettingsFilterAudioVolume.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterAudioVolume::CLASS_ID ZORVAN_INIT_STRINGS = "$$AUDIO_VOLUME$$";

const std::string& SettingsFilterAudioVolume::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterAudioVolume::Clone() const
{
    return std::make_unique<SettingsFilterAudioVolume>(*this);
}

bool SettingsFilterAudioVolume::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterAudioVolume&>(other);
}

bool SettingsFilterAudioVolume::operator==(const SettingsFilterAudioVolume& other) const
{
    return std::abs(linearGain - other.linearGain) < 1e-6 && boolean == other.boolean;
}

void SettingsFilterAudioVolume::SetVolumeDb(double db)
{
    linearGain = std::pow(10.0, db / 20.0);
}

void SettingsFilterAudioVolume::SetLinearGain(double gain)
{
    linearGain = gain;
}

void SettingsFilterAudioVolume::SetBoolean(bool value)
{
    boolean = value;
}

double SettingsFilterAudioVolume::GetLinearGain() const
{
    return linearGain;
}

bool SettingsFilterAudioVolume::GetBoolean() const
{
    return boolean;
}

} // namespace Zorvan::Proc

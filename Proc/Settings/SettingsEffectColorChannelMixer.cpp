#include "Proc/Settings/SettingsEffectColorChannelMixer.h"

#include <cmath>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

// A weight off by less than a thousandth moves an 8-bit value by less than half a step.
bool Close(const SettingsEffectColorChannelMixer::Matrix& a, const SettingsEffectColorChannelMixer::Matrix& b)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!(std::fabs(a[i] - b[i]) < 0.001)) {
            return false;
        }
    }
    return true;
}

} // namespace

const std::string SettingsEffectColorChannelMixer::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_COLOR_CHANNEL_MIXER";

const std::string& SettingsEffectColorChannelMixer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorChannelMixer::Clone() const
{
    return std::make_unique<SettingsEffectColorChannelMixer>(*this);
}

bool SettingsEffectColorChannelMixer::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorChannelMixer&>(other);
}

bool SettingsEffectColorChannelMixer::IsEmpty() const
{
    return Close(matrix, SettingsEffectColorChannelMixer().matrix);
}

bool SettingsEffectColorChannelMixer::operator==(const SettingsEffectColorChannelMixer& other) const
{
    return Close(matrix, other.matrix);
}

void SettingsEffectColorChannelMixer::SetMatrix(const Matrix& value)
{
    matrix = value;
}

const SettingsEffectColorChannelMixer::Matrix& SettingsEffectColorChannelMixer::GetMatrix() const
{
    return matrix;
}

} // namespace Zorvan::Proc

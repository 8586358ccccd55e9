#include "Proc/Settings/SettingsTransitionRipple.h"

#include <algorithm>
#include <array>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionRipple::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionRipple$$";

const std::string& SettingsTransitionRipple::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionRipple::Clone() const
{
    return std::make_unique<SettingsTransitionRipple>(*this);
}

void SettingsTransitionRipple::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"mode", "ampl", "period", "n", "x", "y"});
    MapForm::Read(map, "mode", mode);
    if (const auto value = MapForm::Find<int>(map, "ampl")) {
        SetAmplitude(static_cast<unsigned int>(*value));
    }
    if (const auto value = MapForm::Find<int>(map, "period")) {
        SetPeriod(static_cast<unsigned int>(*value));
    }
    if (const auto value = MapForm::Find<int>(map, "n")) {
        SetWaveCount(static_cast<unsigned int>(*value));
    }
    if (const auto texts = MapForm::FindAll(map, std::array{"x", "y"})) {
        const double x = std::stod((*texts)[0]);
        point.SetCenter(x, std::stod((*texts)[1]));
    }
}

void SettingsTransitionRipple::SetAmplitude(unsigned int value)
{
    amplitude = std::max(value, 10U);
}

void SettingsTransitionRipple::SetPeriod(unsigned int value)
{
    period = std::max(value, 7U);
}

void SettingsTransitionRipple::SetWaveCount(unsigned int value)
{
    waveCount = std::max(value, 1U);
}

} // namespace Zorvan::Proc

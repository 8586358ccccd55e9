#include "Proc/Settings/SettingsEffectRemoveGrain.h"

#include <cstddef>
#include <string>
#include <vector>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

void CheckPlane(int plane)
{
    if (plane < 0 || plane > 3) {
        ThrowEffect("Invalid plane index!");
    }
}

} // namespace

const std::string SettingsEffectRemoveGrain::CLASS_ID ZORVAN_INIT_STRINGS = "EffectRemoveGrain";

const std::string& SettingsEffectRemoveGrain::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRemoveGrain::Clone() const
{
    return std::make_unique<SettingsEffectRemoveGrain>(*this);
}

bool SettingsEffectRemoveGrain::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectRemoveGrain&>(other);
}

bool SettingsEffectRemoveGrain::IsEmpty() const
{
    return modes[0] == 0 && modes[1] == 0 && modes[2] == 0 && modes[3] == 0;
}

void SettingsEffectRemoveGrain::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Key i holds the mode of plane i, read in plane order.
    const std::vector<std::string> keys{"m0", "m1", "m2", "m3"};
    const auto map = GetOptionsMap(options, keys);
    for (std::size_t plane = 0; plane < keys.size(); ++plane) {
        if (const auto mode = MapForm::Find<int>(map, keys[plane])) {
            SetMode(static_cast<int>(plane), *mode);
        }
    }
}

bool SettingsEffectRemoveGrain::operator==(const SettingsEffectRemoveGrain& other) const
{
    return modes == other.modes;
}

int SettingsEffectRemoveGrain::GetMode(int plane) const
{
    CheckPlane(plane);
    return modes[static_cast<std::size_t>(plane)];
}

void SettingsEffectRemoveGrain::SetMode(int plane, int mode)
{
    if (mode < 0 || mode > 24) {
        ThrowEffect("Invalid mode value");
    }
    CheckPlane(plane);
    modes[static_cast<std::size_t>(plane)] = mode;
}

} // namespace Zorvan::Proc

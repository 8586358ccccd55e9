#include "Proc/Settings/SettingsEffectAutoWhiteBalance.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAutoWhiteBalance::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAutoWhiteBalance";

const std::string& SettingsEffectAutoWhiteBalance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAutoWhiteBalance::Clone() const
{
    return std::make_unique<SettingsEffectAutoWhiteBalance>(*this);
}

bool SettingsEffectAutoWhiteBalance::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectAutoWhiteBalance&>(other);
}

void SettingsEffectAutoWhiteBalance::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"r", "g", "b", "m"});
    // The colour only when all of "r", "g" and "b" are present; else it stays and "m" is
    // still read.
    if (const auto texts = MapForm::FindAll<3>(map, {"r", "g", "b"})) {
        const auto red = static_cast<std::uint32_t>(MapForm::Convert<int>((*texts)[0]));
        const auto green = static_cast<std::uint32_t>(MapForm::Convert<int>((*texts)[1]));
        const auto blue = static_cast<std::uint32_t>(MapForm::Convert<int>((*texts)[2]));
        referenceColor = MapForm::PackColor(red, green, blue, 0);
    }
    MapForm::Read(map, "m", mode);
}

bool SettingsEffectAutoWhiteBalance::operator==(const SettingsEffectAutoWhiteBalance& other) const
{
    return referenceColor == other.referenceColor && mode == other.mode;
}

} // namespace Zorvan::Proc

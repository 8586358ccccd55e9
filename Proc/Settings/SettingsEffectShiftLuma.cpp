#include "Proc/Settings/SettingsEffectShiftLuma.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectShiftLuma::CLASS_ID ZORVAN_INIT_STRINGS = "EffectShiftLuma";

const std::string& SettingsEffectShiftLuma::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectShiftLuma::Clone() const
{
    return std::make_unique<SettingsEffectShiftLuma>(*this);
}

bool SettingsEffectShiftLuma::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectShiftLuma&>(other);
}

void SettingsEffectShiftLuma::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"shadows", "highlights"});
    MapForm::Read(map, "shadows", shadows);
    MapForm::Read(map, "highlights", highlights);
}

bool SettingsEffectShiftLuma::operator==(const SettingsEffectShiftLuma& other) const
{
    return shadows == other.shadows && highlights == other.highlights;
}

void SettingsEffectShiftLuma::SetShadowsShift(float value)
{
    shadows = value;
}

void SettingsEffectShiftLuma::SetHighlightsShift(float value)
{
    highlights = value;
}

float SettingsEffectShiftLuma::GetShadows() const
{
    return shadows;
}

float SettingsEffectShiftLuma::GetHighlights() const
{
    return highlights;
}

} // namespace Zorvan::Proc

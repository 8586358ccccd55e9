#include "Proc/Settings/SettingsTransitionThroughColor.h"

#include <array>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionThroughColor::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionThroughColor";

const std::string& SettingsTransitionThroughColor::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionThroughColor::Clone() const
{
    return std::make_unique<SettingsTransitionThroughColor>(*this);
}

void SettingsTransitionThroughColor::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"r", "g", "b", "a"});
    const auto texts = MapForm::FindAll<4>(map, {"r", "g", "b", "a"});
    if (!texts) {
        return;
    }
    // All four converted before any is stored: the colour changes whole or not at all.
    const float red = std::stof((*texts)[0]);
    const float green = std::stof((*texts)[1]);
    const float blue = std::stof((*texts)[2]);
    const float alpha = std::stof((*texts)[3]);
    SetColorRGB(red, green, blue, alpha);
}

void SettingsTransitionThroughColor::SetColorRGB(float red, float green, float blue, float alpha)
{
    keyColorR = red;
    keyColorG = green;
    keyColorB = blue;
    keyColorA = alpha;
}

float SettingsTransitionThroughColor::GetKeyColorR() const
{
    return keyColorR;
}

float SettingsTransitionThroughColor::GetKeyColorG() const
{
    return keyColorG;
}

float SettingsTransitionThroughColor::GetKeyColorB() const
{
    return keyColorB;
}

float SettingsTransitionThroughColor::GetKeyColorA() const
{
    return keyColorA;
}

} // namespace Zorvan::Proc

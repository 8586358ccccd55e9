#include "Proc/Settings/SettingsEffectFillBlurredBackground.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFillBlurredBackground::CLASS_ID ZORVAN_INIT_STRINGS = "EffectFillBlurredBackground";

const std::string& SettingsEffectFillBlurredBackground::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFillBlurredBackground::Clone() const
{
    return std::make_unique<SettingsEffectFillBlurredBackground>(*this);
}

void SettingsEffectFillBlurredBackground::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const auto value = GetOption<int>(options, "radius", "")) {
        radius = *value;
    }
    const auto read = [&options](const char* key, double& field) {
        if (const auto value = GetOption<double>(options, key, "")) {
            field = *value;
        }
    };
    read("rect_left", rect.left);
    read("rect_top", rect.top);
    read("rect_right", rect.right);
    read("rect_bottom", rect.bottom);
}

void SettingsEffectFillBlurredBackground::SetRadius(std::int32_t value)
{
    radius = value;
}

void SettingsEffectFillBlurredBackground::SetRect(const CropInfoF& value)
{
    rect = value;
}

std::int32_t SettingsEffectFillBlurredBackground::GetRadius() const
{
    return radius;
}

const CropInfoF& SettingsEffectFillBlurredBackground::GetRect() const
{
    return rect;
}

} // namespace Zorvan::Proc

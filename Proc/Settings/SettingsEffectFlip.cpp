#include "Proc/Settings/SettingsEffectFlip.h"

#include <algorithm>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectFlip::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_FLIP";

const std::string SettingsEffectFlip::s_flip ZORVAN_INIT_STRINGS = "flip";

const std::vector<std::string> SettingsEffectFlip::s_params ZORVAN_INIT_PARAMS = {s_flip};

SettingsEffectFlip::SettingsEffectFlip()
    : SettingsEffectFlip(false, false)
{
}

SettingsEffectFlip::SettingsEffectFlip(bool horizontal, bool vertical)
    : horizontalFlip(horizontal)
    , verticalFlip(vertical)
{
    UpdateMatrix();
}

const std::string& SettingsEffectFlip::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectFlip::Clone() const
{
    return std::make_unique<SettingsEffectFlip>(*this);
}

void SettingsEffectFlip::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    const std::string* text = MapForm::FindText(map, s_flip);
    if (text == nullptr) {
        return;
    }
    std::vector<std::string> tokens;
    Core::Utils::SplitString(tokens, Core::Utils::RemoveQuotes(*text), ',');
    const auto has = [&tokens](const char* token) {
        return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
    };
    horizontalFlip = has("h");
    verticalFlip = has("v");
    UpdateMatrix();
}

bool SettingsEffectFlip::IsOddSizeAllowed() const
{
    return true;
}

std::int32_t SettingsEffectFlip::GetMode() const
{
    return 0;
}

void SettingsEffectFlip::SetHorizontalFlip(bool flip)
{
    horizontalFlip = flip;
    UpdateMatrix();
}

void SettingsEffectFlip::SetVerticalFlip(bool flip)
{
    verticalFlip = flip;
    UpdateMatrix();
}

bool SettingsEffectFlip::GetHorizontalFlip() const
{
    return horizontalFlip;
}

bool SettingsEffectFlip::GetVerticalFlip() const
{
    return verticalFlip;
}

void SettingsEffectFlip::UpdateMatrix()
{
    matrix.m = {horizontalFlip ? -1.0 : 1.0, 0.0, 0.0, 0.0, verticalFlip ? -1.0 : 1.0, 0.0, 0.0, 0.0, 1.0};
}

} // namespace Zorvan::Proc

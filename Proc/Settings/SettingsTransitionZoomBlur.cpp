#include "Proc/Settings/SettingsTransitionZoomBlur.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Saturate.h"
#include "Proc/Settings/Spellings.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionZoomBlur::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionZoomBlur";

const std::string& SettingsTransitionZoomBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionZoomBlur::Clone() const
{
    return std::make_unique<SettingsTransitionZoomBlur>(*this);
}

void SettingsTransitionZoomBlur::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    static const SpellingTable<Type> types{
        {"In", Type::In},
        {"Out", Type::Out},
        {"InOut", Type::InOut},
        {"OutIn", Type::OutIn},
    };
    if (const std::string_view text = OptionRegexSearch(options, "type", ""); !text.empty()) {
        const auto found = FindSpelling(types, text);
        if (!found) {
            ThrowInvalidArgument("Invalid zoom type: " + std::string(text));
        }
        type = *found;
    }
    if (const auto value = GetOption<float>(options, "maxZoom", "")) {
        SetMaxZoom(*value);
    }
    if (const auto value = GetOption<float>(options, "maxBlur", "")) {
        SetMaxBlur(*value);
    }
    if (const auto value = GetOption<float>(options, "boostPower", "")) {
        SetBoostPower(*value);
    }
    if (const auto value = GetOption<float>(options, "mixDuration", "")) {
        SetMixDuration(*value);
    }
}

void SettingsTransitionZoomBlur::SetType(Type value)
{
    type = value;
}

SettingsTransitionZoomBlur::Type SettingsTransitionZoomBlur::GetType() const
{
    return type;
}

void SettingsTransitionZoomBlur::SetMaxZoom(float zoom)
{
    maxZoom = Saturate(zoom, 0.0F, 0.9F);
}

float SettingsTransitionZoomBlur::GetMaxZoom() const
{
    return maxZoom;
}

void SettingsTransitionZoomBlur::SetMaxBlur(float blur)
{
    maxBlur = Saturate(blur, 0.0F, 1.0F);
}

float SettingsTransitionZoomBlur::GetMaxBlur() const
{
    return maxBlur;
}

void SettingsTransitionZoomBlur::SetBoostPower(float power)
{
    boostPower = power < 1.0F ? 1.0F : power;
}

float SettingsTransitionZoomBlur::GetBoostPower() const
{
    return boostPower;
}

void SettingsTransitionZoomBlur::SetMixDuration(float duration)
{
    mixDuration = Saturate(duration, 0.0F, 0.5F);
}

float SettingsTransitionZoomBlur::GetMixDuration() const
{
    return mixDuration;
}

} // namespace Zorvan::Proc

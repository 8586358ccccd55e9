#include "Proc/Settings/SettingsTransitionKenBurns.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

float Share(unsigned int percent, unsigned int most)
{
    if (percent > most) {
        ThrowLogicError("Incorrect value passed");
    }
    return static_cast<float>(percent / 100.0);
}

} // namespace

const std::string SettingsTransitionKenBurns::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionKenBurns$$";

const std::string& SettingsTransitionKenBurns::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionKenBurns::Clone() const
{
    return std::make_unique<SettingsTransitionKenBurns>(*this);
}

void SettingsTransitionKenBurns::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"direction", "fade", "zoom"});
    MapForm::Read(map, "direction", direction);
    if (const auto value = MapForm::Find<int>(map, "fade")) {
        SetFade(static_cast<unsigned int>(*value));
    }
    if (const auto value = MapForm::Find<int>(map, "zoom")) {
        SetZoom(static_cast<unsigned int>(*value));
    }
}

void SettingsTransitionKenBurns::SetZoom(unsigned int percent)
{
    zoom = Share(percent, 50U);
}

void SettingsTransitionKenBurns::SetFade(unsigned int percent)
{
    fade = Share(percent, 100U);
}

SettingsTransitionKenBurns::DirMat SettingsTransitionKenBurns::GetDirection() const
{
    static constexpr std::array<DirMat, 9> corners{{
        {-1, -1, 1, -1, 1, 1, -1, 1},
        {0, -1, 2, -1, 2, 1, 0, 1},
        {-2, -1, 0, -1, 0, 1, -2, 1},
        {-1, 0, 1, 0, 1, 2, -1, 2},
        {-1, -2, 1, -2, 1, 0, -1, 0},
        {0, 0, 2, 0, 2, 2, 0, 2},
        {0, -2, 2, -2, 2, 0, 0, 0},
        {-2, 0, 0, 0, 0, 2, -2, 2},
        {-2, -2, 0, -2, 0, 0, -2, 0},
    }};
    // Compared as unsigned, so a negative number fails too.
    const auto index = static_cast<std::uint32_t>(direction);
    if (index >= corners.size()) {
        ThrowLogicError("Incorrect value passed, use enumerated value");
    }
    return corners[index];
}

} // namespace Zorvan::Proc

#include "Proc/Settings/SettingsEffectTiltShiftVEZ.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

// A line group: replaces `line` only when all three keys are present.
void ReadLineGroup(const Settings::OptionsMap& map, const std::array<const char*, 3>& keys, std::array<double, 3>& line)
{
    if (const auto texts = MapForm::FindAll<3>(map, keys)) {
        const double a = MapForm::Convert<double>((*texts)[0]);
        const double b = MapForm::Convert<double>((*texts)[1]);
        const double c = MapForm::Convert<double>((*texts)[2]);
        line = {a, b, c};
    }
}

} // namespace

const std::string SettingsEffectTiltShiftVEZ::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectTiltShiftVEZ$$";

const std::string& SettingsEffectTiltShiftVEZ::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTiltShiftVEZ::Clone() const
{
    return std::make_unique<SettingsEffectTiltShiftVEZ>(*this);
}

void SettingsEffectTiltShiftVEZ::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Each line is a group; "smoothness" and "blurness" are independent.
    const auto map = GetOptionsMap(options, {"ua", "ub", "uc", "la", "lb", "lc", "smoothness", "blurness"});
    ReadLineGroup(map, {"ua", "ub", "uc"}, upperLine);
    ReadLineGroup(map, {"la", "lb", "lc"}, lowerLine);
    MapForm::Read(map, "smoothness", smoothness);
    MapForm::Read(map, "blurness", blurness);
}

void SettingsEffectTiltShiftVEZ::SetUpperLine(double a, double b, double c)
{
    upperLine = {a, b, c};
}

void SettingsEffectTiltShiftVEZ::SetLowerLine(double a, double b, double c)
{
    lowerLine = {a, b, c};
}

void SettingsEffectTiltShiftVEZ::SetParams(double newSmoothness, double newBlurness)
{
    smoothness = newSmoothness;
    blurness = newBlurness;
}

std::array<double, 3> SettingsEffectTiltShiftVEZ::GetUpperLine() const
{
    return upperLine;
}

std::array<double, 3> SettingsEffectTiltShiftVEZ::GetLowerLine() const
{
    return lowerLine;
}

double SettingsEffectTiltShiftVEZ::GetSmoothness() const
{
    return smoothness;
}

double SettingsEffectTiltShiftVEZ::GetBlurness() const
{
    return blurness;
}

} // namespace Zorvan::Proc

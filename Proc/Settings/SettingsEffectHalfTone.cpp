#include "Proc/Settings/SettingsEffectHalfTone.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

// A colour group of three int keys, each cut to 8 bits, red lowest, top byte 0: replaces
// `color` only when all three keys are present.
void ReadColorGroup(const Settings::OptionsMap& map, const std::array<const char*, 3>& keys, Color& color)
{
    if (const auto texts = MapForm::FindAll<3>(map, keys)) {
        const int red = MapForm::Convert<int>((*texts)[0]);
        const int green = MapForm::Convert<int>((*texts)[1]);
        const int blue = MapForm::Convert<int>((*texts)[2]);
        color = MapForm::PackColor(static_cast<std::uint32_t>(red), static_cast<std::uint32_t>(green),
                                   static_cast<std::uint32_t>(blue), 0U);
    }
}

} // namespace

const std::string SettingsEffectHalfTone::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectHalfTone$$";

const std::string& SettingsEffectHalfTone::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectHalfTone::Clone() const
{
    return std::make_unique<SettingsEffectHalfTone>(*this);
}

bool SettingsEffectHalfTone::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectHalfTone&>(other);
}

void SettingsEffectHalfTone::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Ten keys; the two colours are groups, the rest independent.
    const auto map = GetOptionsMap(
        options, {"rbg", "gbg", "bbg", "rdot", "gdot", "bdot", "colorsize", "threshold", "dotsize", "angle"});
    ReadColorGroup(map, {"rbg", "gbg", "bbg"}, backgroundColor);
    ReadColorGroup(map, {"rdot", "gdot", "bdot"}, dotColor);
    MapForm::Read(map, "colorsize", colorSize);
    MapForm::Read(map, "threshold", threshold);
    MapForm::Read(map, "dotsize", dotSize);
    MapForm::Read(map, "angle", angle);
}

bool SettingsEffectHalfTone::operator==(const SettingsEffectHalfTone& other) const
{
    return backgroundColor == other.backgroundColor && dotColor == other.dotColor && colorSize == other.colorSize &&
           threshold == other.threshold && dotSize == other.dotSize && angle == other.angle;
}

void SettingsEffectHalfTone::SetParam(double newColourSize, double newThreshold, double newDotSize, int newAngle)
{
    colorSize = newColourSize;
    threshold = newThreshold;
    dotSize = newDotSize;
    angle = newAngle;
}

void SettingsEffectHalfTone::SetColourSize(double value)
{
    colorSize = value;
}

void SettingsEffectHalfTone::SetThreshold(double value)
{
    threshold = value;
}

void SettingsEffectHalfTone::SetDotSize(double value)
{
    dotSize = value;
}

void SettingsEffectHalfTone::SetAngle(int value)
{
    angle = value;
}

void SettingsEffectHalfTone::SetBackgroundColor(Color value)
{
    backgroundColor = value;
}

void SettingsEffectHalfTone::SetDotColor(Color value)
{
    dotColor = value;
}

Color SettingsEffectHalfTone::GetBackgroundColor() const
{
    return backgroundColor;
}

Color SettingsEffectHalfTone::GetDotColor() const
{
    return dotColor;
}

double SettingsEffectHalfTone::GetColorSize() const
{
    return colorSize;
}

double SettingsEffectHalfTone::GetThreshold() const
{
    return threshold;
}

double SettingsEffectHalfTone::GetDotSize() const
{
    return dotSize;
}

int SettingsEffectHalfTone::GetAngle() const
{
    return angle;
}

} // namespace Zorvan::Proc

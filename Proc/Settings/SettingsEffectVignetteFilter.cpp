#include "Proc/Settings/SettingsEffectVignetteFilter.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectVignetteFilter::CLASS_ID ZORVAN_INIT_STRINGS = "EffectVignetteFilter";

const std::string& SettingsEffectVignetteFilter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectVignetteFilter::Clone() const
{
    return std::make_unique<SettingsEffectVignetteFilter>(*this);
}

bool SettingsEffectVignetteFilter::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectVignetteFilter&>(other);
}

void SettingsEffectVignetteFilter::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Twelve keys; "r", "g", "b", "a" are one group, all others independent.
    const auto map =
        GetOptionsMap(options, {"form", "smooth", "aspect", "x0", "y0", "ri", "re", "r", "g", "b", "a", "intensity"});
    MapForm::Read(map, "form", form);
    MapForm::Read(map, "smooth", smooth);
    MapForm::Read(map, "aspect", aspect);
    MapForm::Read(map, "x0", x0);
    MapForm::Read(map, "y0", y0);
    MapForm::Read(map, "ri", ri);
    MapForm::Read(map, "re", re);
    if (const auto texts = MapForm::FindAll<4>(map, {"r", "g", "b", "a"})) {
        const int red = MapForm::Convert<int>((*texts)[0]);
        const int green = MapForm::Convert<int>((*texts)[1]);
        const int blue = MapForm::Convert<int>((*texts)[2]);
        const int alpha = MapForm::Convert<int>((*texts)[3]);
        color = MapForm::PackColor(static_cast<std::uint32_t>(red), static_cast<std::uint32_t>(green),
                                   static_cast<std::uint32_t>(blue), static_cast<std::uint32_t>(alpha));
    }
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectVignetteFilter::operator==(const SettingsEffectVignetteFilter& other) const
{
    return form == other.form && smooth == other.smooth && aspect == other.aspect && color == other.color &&
           x0 == other.x0 && y0 == other.y0 && ri == other.ri && re == other.re && intensity == other.intensity;
}

void SettingsEffectVignetteFilter::SetParams(double newX0, double newY0, double newRi, double newRe)
{
    x0 = newX0;
    y0 = newY0;
    ri = newRi;
    re = newRe;
}

void SettingsEffectVignetteFilter::SetIntensity(float value)
{
    intensity = value;
}

void SettingsEffectVignetteFilter::SetForm(int value)
{
    form = value;
}

void SettingsEffectVignetteFilter::SetSmooth(int value)
{
    smooth = value;
}

void SettingsEffectVignetteFilter::SetAspect(int value)
{
    aspect = value;
}

void SettingsEffectVignetteFilter::SetColor(Color value)
{
    color = value;
}

int SettingsEffectVignetteFilter::GetForm() const
{
    return form;
}

int SettingsEffectVignetteFilter::GetSmooth() const
{
    return smooth;
}

int SettingsEffectVignetteFilter::GetAspect() const
{
    return aspect;
}

Color SettingsEffectVignetteFilter::GetColor() const
{
    return color;
}

double SettingsEffectVignetteFilter::GetX0() const
{
    return x0;
}

double SettingsEffectVignetteFilter::GetY0() const
{
    return y0;
}

double SettingsEffectVignetteFilter::GetRi() const
{
    return ri;
}

double SettingsEffectVignetteFilter::GetRe() const
{
    return re;
}

float SettingsEffectVignetteFilter::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc

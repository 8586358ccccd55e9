#include "Proc/Settings/SettingsEffectMask.h"

#include <utility>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// A channel as the renderer's byte: scaled in single precision, truncated toward zero.
std::uint32_t ChannelByte(float value)
{
    return TruncateSaturated(static_cast<double>(value * 255.0F));
}

// The four channels checked in order before anything is packed; not-a-number passes.
Color PackChecked(float red, float green, float blue, float alpha)
{
    const std::pair<float, const char*> channels[] = {
        {red, "Invalid red channel!"},
        {green, "Invalid green channel!"},
        {blue, "Invalid blue channel!"},
        {alpha, "Invalid alpha channel!"},
    };
    for (const auto& [value, message] : channels) {
        if (value < 0.0F || value > 1.0F) {
            ThrowEffect(message);
        }
    }
    return MapForm::PackColor(ChannelByte(red), ChannelByte(green), ChannelByte(blue), ChannelByte(alpha));
}

// A selector read as an unsigned 64-bit number (a negative one wraps to a large value); a
// value outside 0..`largest`, or none, gives `fallback`.
std::int32_t Selector(const Settings::OptionsMap& map, const std::string& key, unsigned long long largest,
                      std::int32_t fallback)
{
    const auto value = MapForm::Find<unsigned long long>(map, key);
    return value && *value <= largest ? static_cast<std::int32_t>(*value) : fallback;
}

} // namespace

const std::string SettingsEffectMask::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectMask$$";

const std::string& SettingsEffectMask::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMask::Clone() const
{
    return std::make_unique<SettingsEffectMask>(*this);
}

void SettingsEffectMask::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"x", "y", "w", "h", "type", "shape", "method"});
    double x = 0.0;
    double y = 0.0;
    double w = 1.0;
    double h = 1.0;
    MapForm::Read(map, "x", x);
    MapForm::Read(map, "y", y);
    MapForm::Read(map, "w", w);
    MapForm::Read(map, "h", h);
    const std::int32_t newType = Selector(map, "type", 1, 0);
    const std::int32_t newMethod = Selector(map, "method", 2, 2);
    const std::int32_t shape = Selector(map, "shape", 1, 0);

    FrameMask mask;
    mask.shape = shape;
    mask.matrix = {w, 0.0, 0.0, 0.0, h, 0.0, x, y, 1.0};
    mask.method = newMethod;
    // Nothing is changed before every key has been read: a bad number leaves the record whole.
    frameFunctors = {[mask](double) { return std::make_unique<FrameMask>(mask); }};
    type = newType;
    method = newMethod;
}

void SettingsEffectMask::SetBackGColor(float red, float green, float blue, float alpha)
{
    backGColor = PackChecked(red, green, blue, alpha);
}

void SettingsEffectMask::SetFrameColor(float red, float green, float blue, float alpha)
{
    frameColor = PackChecked(red, green, blue, alpha);
}

void SettingsEffectMask::SetFrameFunctors(const std::vector<FrameFunctor>& functors)
{
    frameFunctors = functors;
}

std::vector<std::unique_ptr<SettingsEffectMask::FrameMask>> SettingsEffectMask::GetFrames(double time) const
{
    std::vector<std::unique_ptr<FrameMask>> frames;
    for (const auto& functor : frameFunctors) {
        if (auto frame = functor(time)) {
            frames.push_back(std::move(frame));
        }
    }
    return frames;
}

const std::vector<SettingsEffectMask::FrameFunctor>& SettingsEffectMask::GetFrameFunctors() const
{
    return frameFunctors;
}

std::int32_t SettingsEffectMask::GetType() const
{
    return type;
}

double SettingsEffectMask::GetFixedParam1() const
{
    return fixedParam1;
}

double SettingsEffectMask::GetFixedParam2() const
{
    return fixedParam2;
}

double SettingsEffectMask::GetFixedParam3() const
{
    return fixedParam3;
}

double SettingsEffectMask::GetFixedParam4() const
{
    return fixedParam4;
}

std::int32_t SettingsEffectMask::GetMethod() const
{
    return method;
}

Color SettingsEffectMask::GetBackGColor() const
{
    return backGColor;
}

Color SettingsEffectMask::GetFrameColor() const
{
    return frameColor;
}

} // namespace Zorvan::Proc

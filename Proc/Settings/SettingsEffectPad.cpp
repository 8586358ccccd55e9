#include "Proc/Settings/SettingsEffectPad.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectPad::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_PAD";

const std::string SettingsEffectPad::s_mode ZORVAN_INIT_STRINGS = "mode";
const std::string SettingsEffectPad::s_left ZORVAN_INIT_STRINGS = "left";
const std::string SettingsEffectPad::s_right ZORVAN_INIT_STRINGS = "right";
const std::string SettingsEffectPad::s_top ZORVAN_INIT_STRINGS = "top";
const std::string SettingsEffectPad::s_bottom ZORVAN_INIT_STRINGS = "bottom";
const std::string SettingsEffectPad::s_red ZORVAN_INIT_STRINGS = "r";
const std::string SettingsEffectPad::s_green ZORVAN_INIT_STRINGS = "g";
const std::string SettingsEffectPad::s_blue ZORVAN_INIT_STRINGS = "b";
const std::string SettingsEffectPad::s_gapX ZORVAN_INIT_STRINGS = "gapx";
const std::string SettingsEffectPad::s_gapY ZORVAN_INIT_STRINGS = "gapy";

const std::vector<std::string> SettingsEffectPad::s_params ZORVAN_INIT_PARAMS = {
    s_mode, s_left, s_right, s_top, s_bottom, s_red, s_green, s_blue, s_gapX, s_gapY,
};

SettingsEffectPad::SettingsEffectPad(Mode mode)
    : mode(mode)
{
}

SettingsEffectPad::SettingsEffectPad(const CropInfo& crop, Mode mode)
    : mode(mode)
    , crop(crop)
{
}

SettingsEffectPad::SettingsEffectPad(const CropInfo& crop, const Color& color)
    : crop(crop)
    , color(color)
{
}

const std::string& SettingsEffectPad::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectPad::Clone() const
{
    return std::make_unique<SettingsEffectPad>(*this);
}

bool SettingsEffectPad::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectPad&>(other);
}

bool SettingsEffectPad::IsEmpty() const
{
    return crop.left == 0 && crop.right == 0 && crop.top == 0 && crop.bottom == 0;
}

void SettingsEffectPad::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    MapForm::Read(map, s_mode, mode);
    const auto signedOrZero = [&map](const std::string& key) { return MapForm::Find<int>(map, key).value_or(0); };
    const int left = signedOrZero(s_left);
    const int right = signedOrZero(s_right);
    const int top = signedOrZero(s_top);
    const int bottom = signedOrZero(s_bottom);
    // Four zeros keep the margins, so that a colour-only string does not remove them.
    if (left != 0 || right != 0 || top != 0 || bottom != 0) {
        crop = CropInfo{static_cast<std::uint32_t>(left), static_cast<std::uint32_t>(right),
                        static_cast<std::uint32_t>(top), static_cast<std::uint32_t>(bottom)};
    }
    // Every non-empty string sets the colour; without colour keys it is opaque black.
    const int red = signedOrZero(s_red);
    const int green = signedOrZero(s_green);
    const int blue = signedOrZero(s_blue);
    color = MapForm::PackColor(static_cast<std::uint32_t>(red), static_cast<std::uint32_t>(green),
                               static_cast<std::uint32_t>(blue), 0xFFU);
    if (const auto value = MapForm::Find<int>(map, s_gapX)) {
        gapX = static_cast<std::uint32_t>(*value);
    }
    if (const auto value = MapForm::Find<int>(map, s_gapY)) {
        gapY = static_cast<std::uint32_t>(*value);
    }
}

bool SettingsEffectPad::operator==(const SettingsEffectPad& other) const
{
    if (mode != other.mode || !(crop == other.crop)) {
        return false;
    }
    switch (mode) {
    case Mode::Tile:
    case Mode::TileMirrored:
        if (gapX != other.gapX || gapY != other.gapY) {
            return false;
        }
        if (gapX == 0 && gapY == 0) {
            return true;
        }
        break;
    case Mode::Fill:
        break;
    default:
        ThrowLogicError("Unknown mode");
    }
    return color == other.color;
}

void SettingsEffectPad::SetGapX(std::uint32_t value)
{
    gapX = value;
}

void SettingsEffectPad::SetGapY(std::uint32_t value)
{
    gapY = value;
}

SettingsEffectPad::Mode SettingsEffectPad::GetMode() const
{
    return mode;
}

const CropInfo& SettingsEffectPad::GetCrop() const
{
    return crop;
}

Color SettingsEffectPad::GetColor() const
{
    return color;
}

std::uint32_t SettingsEffectPad::GetGapX() const
{
    return gapX;
}

std::uint32_t SettingsEffectPad::GetGapY() const
{
    return gapY;
}

} // namespace Zorvan::Proc

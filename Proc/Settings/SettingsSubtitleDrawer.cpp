#include "Proc/Settings/SettingsSubtitleDrawer.h"

#include <utility>

#include <glog/logging.h>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/Saturate.h"

namespace Zorvan::Proc {

const std::string SettingsSubtitleDrawer::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsSubtitleDrawer";

namespace {

// Offsets and positions wrap at 32 bits, computed unsigned.
std::int32_t Add(std::int32_t value, std::uint32_t amount)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) + amount);
}

std::int32_t AddPercent(std::int32_t percent, int amount)
{
    return static_cast<std::int32_t>(Saturate<std::int64_t>(std::int64_t{percent} + amount, 0, 100));
}

// Mode 1 along one side: `low` and `high` are the picture's edges on that axis.
std::int32_t PercentPosition(std::int32_t percent, std::uint32_t side, std::uint32_t low, std::uint32_t high)
{
    const std::int32_t extent = static_cast<std::int32_t>(high - low);
    const std::int32_t position = static_cast<std::int32_t>(static_cast<std::uint32_t>(percent) * side / 100U -
                                                            static_cast<std::uint32_t>(extent / 2));
    if (position < 0) {
        return 0;
    }
    const std::int32_t room = static_cast<std::int32_t>(side - static_cast<std::uint32_t>(extent));
    if (position <= room) {
        return position & ~1;
    }
    return (room < 0 ? room + 1 : room) & ~1;
}

// Mode 0 along one side; `farEdge` is the alignment that puts the picture at the far edge.
std::int32_t OffsetPosition(std::int32_t offset, std::int32_t alignment, std::int32_t farEdge, std::uint32_t side,
                            std::uint32_t low, std::uint32_t high)
{
    const std::uint32_t freeSpace = side - high + low;
    if (alignment == 0) {
        return Add(offset, (freeSpace >> 1) & 0x7FFFFFFEU);
    }
    if (alignment == farEdge) {
        return Add(offset, freeSpace);
    }
    if (alignment == 3) {
        return Add(offset, low);
    }
    return offset;
}

void WarnReset()
{
    google::LogMessage(__FILE__, __LINE__, google::GLOG_WARNING).stream()
        << "AssRenderer setting out of range. Set to default value.";
}

constexpr double kNotSetDouble = AssRendererSettings::SETTING_DEFAULT_VALUE;

void ResetIf(bool outOfRange, std::int32_t& field)
{
    if (field != AssRendererSettings::SETTING_DEFAULT_VALUE && outOfRange) {
        field = AssRendererSettings::SETTING_DEFAULT_VALUE;
        WarnReset();
    }
}

void CheckUnsigned(std::int32_t& field, std::uint32_t high)
{
    ResetIf(static_cast<std::uint32_t>(field) > high, field);
}

void CheckDouble(double& field, double low, double high)
{
    if (field != kNotSetDouble && !(field >= low && field <= high)) {
        field = kNotSetDouble;
        WarnReset();
    }
}

std::uint32_t PackColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return (std::uint32_t{red} << 24U) | (std::uint32_t{green} << 16U) | (std::uint32_t{blue} << 8U);
}

} // namespace

const std::string& SettingsSubtitleDrawer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsSubtitleDrawer::Clone() const
{
    return std::make_unique<SettingsSubtitleDrawer>(*this);
}

bool SettingsSubtitleDrawer::operator==(const SettingsSubtitleDrawer& other) const
{
    return horizontalAlignment == other.horizontalAlignment && verticalAlignment == other.verticalAlignment &&
           subtitleId == other.subtitleId && offsetX == other.offsetX && offsetY == other.offsetY;
}

void SettingsSubtitleDrawer::SetMode(std::int32_t value)
{
    mode = value;
}

std::int32_t SettingsSubtitleDrawer::GetMode() const
{
    return mode;
}

void SettingsSubtitleDrawer::SetOffsetY(std::int32_t offset)
{
    offsetY = offset;
}

std::int32_t SettingsSubtitleDrawer::GetOffsetY() const
{
    return offsetY;
}

void SettingsSubtitleDrawer::SetOffsetX(std::int32_t offset)
{
    offsetX = offset;
}

std::int32_t SettingsSubtitleDrawer::GetOffsetX() const
{
    return offsetX;
}

void SettingsSubtitleDrawer::SetSubtitleId(std::uint64_t id)
{
    subtitleId = id;
}

std::uint64_t SettingsSubtitleDrawer::GetSubtitleId() const
{
    return subtitleId;
}

void SettingsSubtitleDrawer::SetPercentX(std::int32_t percent)
{
    percentX = Saturate(percent, 0, 100);
}

std::int32_t SettingsSubtitleDrawer::GetPercentX() const
{
    return percentX;
}

void SettingsSubtitleDrawer::SetPercentY(std::int32_t percent)
{
    percentY = Saturate(percent, 0, 100);
}

std::int32_t SettingsSubtitleDrawer::GetPercentY() const
{
    return percentY;
}

void SettingsSubtitleDrawer::SetHorizontalAlignment(AlignmentHorizontal alignment)
{
    horizontalAlignment = alignment;
    switch (alignment) {
    case AlignmentHorizontal::Center:
    case AlignmentHorizontal::Original:
        percentX = 50;
        break;
    case AlignmentHorizontal::Left:
        percentX = 0;
        break;
    case AlignmentHorizontal::Right:
        percentX = 100;
        break;
    }
}

SettingsSubtitleDrawer::AlignmentHorizontal SettingsSubtitleDrawer::GetHorizontalAlignment() const
{
    return horizontalAlignment;
}

void SettingsSubtitleDrawer::SetVerticalAligment(AlignmentVertical alignment)
{
    verticalAlignment = alignment;
    switch (alignment) {
    case AlignmentVertical::Center:
        percentY = 50;
        break;
    case AlignmentVertical::Bottom:
        percentY = 100;
        break;
    case AlignmentVertical::Top:
        percentY = 0;
        break;
    case AlignmentVertical::Original:
        percentY = 90;
        break;
    }
}

SettingsSubtitleDrawer::AlignmentVertical SettingsSubtitleDrawer::GetVerticalAlignment() const
{
    return verticalAlignment;
}

void SettingsSubtitleDrawer::SetMoveSubtitles(int first, int second)
{
    if (mode == MODE_OFFSETS) {
        offsetY = Add(offsetY, static_cast<std::uint32_t>(first));
        offsetX = Add(offsetX, static_cast<std::uint32_t>(second));
    } else if (mode == MODE_PERCENT) {
        percentY = AddPercent(percentY, first);
        percentX = AddPercent(percentX, second);
    }
}

std::int32_t SettingsSubtitleDrawer::GetPositionLeft(const Conf::FrameInfo& frameInfo, const CropInfo& crop) const
{
    if (mode == MODE_PERCENT) {
        return PercentPosition(percentX, frameInfo.width, crop.left, crop.right);
    }
    if (mode == MODE_OFFSETS) {
        return OffsetPosition(offsetX, static_cast<std::int32_t>(horizontalAlignment),
                              static_cast<std::int32_t>(AlignmentHorizontal::Right), frameInfo.width, crop.left,
                              crop.right);
    }
    return 0;
}

std::int32_t SettingsSubtitleDrawer::GetPositionTop(const Conf::FrameInfo& frameInfo, const CropInfo& crop) const
{
    if (mode == MODE_PERCENT) {
        return PercentPosition(percentY, frameInfo.height, crop.top, crop.bottom);
    }
    if (mode == MODE_OFFSETS) {
        return OffsetPosition(offsetY, static_cast<std::int32_t>(verticalAlignment),
                              static_cast<std::int32_t>(AlignmentVertical::Bottom), frameInfo.height, crop.top,
                              crop.bottom);
    }
    return 0;
}

AssRendererSettings::AssRendererSettings(const AssRendererSettings& other)
    : style(other.style)
{
    ValidateSettings();
}

AssRendererSettings& AssRendererSettings::operator=(AssRendererSettings other)
{
    style = std::move(other.style);
    ValidateSettings();
    return *this;
}

void AssRendererSettings::ValidateSettings()
{
    CheckUnsigned(style.marginLeft, 1000U);
    CheckUnsigned(style.marginRight, 1000U);
    CheckUnsigned(style.marginVertical, 1000U);
    CheckDouble(style.fontSize, 1.0, 200.0);
    CheckDouble(style.spacing, 0.0, 100.0);
    CheckDouble(style.angle, -360.0, 360.0);
    ResetIf(style.borderStyle != 1 && style.borderStyle != 3, style.borderStyle);
    CheckDouble(style.outline, 0.0, 4.0);
    CheckDouble(style.shadow, 0.0, 4.0);
    ResetIf(style.alignment < 1 || style.alignment > 9, style.alignment);
    CheckDouble(style.blur, 0.0, 100.0);
    CheckDouble(style.scaleX, 0.1, 10.0);
    CheckDouble(style.scaleY, 0.1, 10.0);
    CheckUnsigned(style.fontStyle, 15U);
}

void AssRendererSettings::SetMarginLeft(std::int32_t margin)
{
    style.marginLeft = margin;
}

std::int32_t AssRendererSettings::GetMarginLeft() const
{
    return style.marginLeft;
}

void AssRendererSettings::SetMarginRight(std::int32_t margin)
{
    style.marginRight = margin;
}

std::int32_t AssRendererSettings::GetMarginRight() const
{
    return style.marginRight;
}

void AssRendererSettings::SetMarginVertical(std::int32_t margin)
{
    style.marginVertical = margin;
}

std::int32_t AssRendererSettings::GetMarginVertical() const
{
    return style.marginVertical;
}

void AssRendererSettings::SetFontName(const std::string& name)
{
    style.fontName = name;
}

const std::string& AssRendererSettings::GetFontName() const
{
    return style.fontName;
}

void AssRendererSettings::SetFontSize(double size)
{
    style.fontSize = size;
}

double AssRendererSettings::GetFontSize() const
{
    return style.fontSize;
}

void AssRendererSettings::SetSpacing(double value)
{
    style.spacing = value;
}

double AssRendererSettings::GetSpacing() const
{
    return style.spacing;
}

void AssRendererSettings::SetAngle(double degrees)
{
    style.angle = degrees;
}

double AssRendererSettings::GetAngle() const
{
    return style.angle;
}

void AssRendererSettings::SetBorderStyle(std::int32_t value)
{
    style.borderStyle = value;
}

std::int32_t AssRendererSettings::GetBorderStyle() const
{
    return style.borderStyle;
}

void AssRendererSettings::SetOutline(double width)
{
    style.outline = width;
}

double AssRendererSettings::GetOutline() const
{
    return style.outline;
}

void AssRendererSettings::SetShadow(double depth)
{
    style.shadow = depth;
}

double AssRendererSettings::GetShadow() const
{
    return style.shadow;
}

void AssRendererSettings::SetAlignment(std::int32_t value)
{
    style.alignment = value;
}

std::int32_t AssRendererSettings::GetAlignment() const
{
    return style.alignment;
}

void AssRendererSettings::SetBlur(double strength)
{
    style.blur = strength;
}

double AssRendererSettings::GetBlur() const
{
    return style.blur;
}

void AssRendererSettings::SetScaleX(double scale)
{
    style.scaleX = scale;
}

double AssRendererSettings::GetScaleX() const
{
    return style.scaleX;
}

void AssRendererSettings::SetScaleY(double scale)
{
    style.scaleY = scale;
}

double AssRendererSettings::GetScaleY() const
{
    return style.scaleY;
}

void AssRendererSettings::SetPrimaryColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    style.primaryColour = PackColour(red, green, blue);
}

std::uint32_t AssRendererSettings::GetPrimaryColour() const
{
    return style.primaryColour;
}

void AssRendererSettings::SetSecondaryColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    style.secondaryColour = PackColour(red, green, blue);
}

std::uint32_t AssRendererSettings::GetSecondaryColour() const
{
    return style.secondaryColour;
}

void AssRendererSettings::SetOutlineColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    style.outlineColour = PackColour(red, green, blue);
}

std::uint32_t AssRendererSettings::GetOutlineColour() const
{
    return style.outlineColour;
}

void AssRendererSettings::SetBackColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    style.backColour = PackColour(red, green, blue);
}

std::uint32_t AssRendererSettings::GetBackColour() const
{
    return style.backColour;
}

void AssRendererSettings::SetFontStyle(std::int32_t flags)
{
    style.fontStyle = flags;
}

std::int32_t AssRendererSettings::GetFontStyle() const
{
    return style.fontStyle;
}

} // namespace Zorvan::Proc

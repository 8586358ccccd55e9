#pragma once
// Burned-in subtitles: where the subtitle picture lands on the frame (SettingsSubtitleDrawer)
// and the style values that override those of an ASS subtitle file (AssRendererSettings).
#include <cstdint>
#include <string>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/Settings.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

// The engine builds the stage from its CLASS_ID and sets the placement through the setters;
// the record keeps the base operations (IsEqualTo and Deserialize throw, IsEmpty is false).
class ZORVAN_SETTINGS_EXPORT SettingsSubtitleDrawer : public Settings {
public:
    static const std::string CLASS_ID;

    // The numbers are the interface (saved projects store them). Values above 3 are kept
    // as they are and place the subtitle at the offset alone.
    enum class AlignmentHorizontal : std::int32_t {
        Center = 0,   // centred; percent x 50
        Left = 1,     // at the offset; percent x 0
        Right = 2,    // at the right edge; percent x 100
        Original = 3, // where the subtitle picture itself stands; percent x 50
    };
    enum class AlignmentVertical : std::int32_t {
        Center = 0,   // centred; percent y 50
        Bottom = 1,   // at the bottom edge; percent y 100
        Top = 2,      // at the offset; percent y 0
        Original = 3, // where the subtitle picture itself stands; percent y 90
    };

    // The placement modes: pixel offsets with an alignment, or a position in percent of the
    // frame. Any other mode places nothing (positions are 0, moves change nothing).
    static constexpr std::int32_t MODE_OFFSETS = 0;
    static constexpr std::int32_t MODE_PERCENT = 1;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Horizontal and vertical alignment, subtitle identifier, offset x and offset y; the
    // mode and the percents take no part.
    bool operator==(const SettingsSubtitleDrawer& other) const;

    // Stored unchecked.
    void SetMode(std::int32_t mode);
    std::int32_t GetMode() const;
    void SetOffsetY(std::int32_t offset);
    std::int32_t GetOffsetY() const;
    void SetOffsetX(std::int32_t offset);
    std::int32_t GetOffsetX() const;
    void SetSubtitleId(std::uint64_t id);
    std::uint64_t GetSubtitleId() const;
    // Clamped to 0 to 100.
    void SetPercentX(std::int32_t percent);
    std::int32_t GetPercentX() const;
    void SetPercentY(std::int32_t percent);
    std::int32_t GetPercentY() const;

    // Stores the alignment and, for 0 to 3, sets percent x (or y) as the enumeration says.
    void SetHorizontalAlignment(AlignmentHorizontal alignment);
    AlignmentHorizontal GetHorizontalAlignment() const;
    void SetVerticalAligment(AlignmentVertical alignment);
    AlignmentVertical GetVerticalAlignment() const;

    // Mode 0: offset y grows by `first` and offset x by `second` (wrapping at 32 bits).
    // Mode 1: percent y grows by `first` and percent x by `second`, each clamped to 0 to 100.
    // Any other mode: nothing.
    void SetMoveSubtitles(int first, int second);

    // The left (top) edge of the subtitle picture `crop` on the frame. Mode 1: percent of the
    // frame side minus half the picture, even, at least 0 and at most the room the picture
    // leaves. Mode 0: the offset plus the free space (side minus picture) by the alignment:
    // half of it made even when centred, all of it at the far edge (right, bottom), the
    // picture's own left (top) at Original, nothing otherwise. Other modes: 0. The
    // arithmetic is 32-bit and wraps.
    std::int32_t GetPositionLeft(const Conf::FrameInfo& frameInfo, const CropInfo& crop) const;
    std::int32_t GetPositionTop(const Conf::FrameInfo& frameInfo, const CropInfo& crop) const;

private:
    // Neutral defaults: pixel offsets of 0, centred both ways, with the percents centring implies.
    std::int32_t mode = MODE_OFFSETS;
    std::int32_t offsetY = 0;
    std::int32_t offsetX = 0;
    std::int32_t percentX = 50;
    std::int32_t percentY = 50;
    // The subtitle stream the stage draws; the engine sets it. 0: none chosen yet.
    std::uint64_t subtitleId = 0;
    AlignmentHorizontal horizontalAlignment = AlignmentHorizontal::Center;
    AlignmentVertical verticalAlignment = AlignmentVertical::Center;
};

// Style values that override those of an ASS subtitle file. Every numeric field may hold
// SETTING_DEFAULT_VALUE (the double fields the same number as a double): not set, the
// file's own value stays. The setters store unchecked; ValidateSettings puts every field
// outside its range back to not set and logs one warning for each, and every copy runs it,
// so a record that reaches the renderer through a copy holds only values it accepts.
class ZORVAN_SETTINGS_EXPORT AssRendererSettings {
public:
    static constexpr std::int32_t SETTING_DEFAULT_VALUE = 2147483647;

    // Every numeric field not set, no font name.
    AssRendererSettings() = default;
    // Copy every field, then ValidateSettings on the new record.
    AssRendererSettings(const AssRendererSettings& other);
    AssRendererSettings& operator=(AssRendererSettings other);
    ~AssRendererSettings() = default;

    // Checks the fields in declaration order; a field that is set and out of range is reset
    // to not set, with one glog warning "AssRenderer setting out of range. Set to default
    // value.". Ranges: margins 0 to 1000 and font style 0 to 15 (read as unsigned), font size
    // 1 to 200, spacing 0 to 100, angle -360 to 360, border style 1 or 3, outline and shadow
    // 0 to 4, alignment 1 to 9, blur 0 to 100, scale x and y 0.1 to 10 (ends included). The
    // font name and the colours are never checked. Never throws.
    void ValidateSettings();

    void SetMarginLeft(std::int32_t margin);
    std::int32_t GetMarginLeft() const;
    void SetMarginRight(std::int32_t margin);
    std::int32_t GetMarginRight() const;
    void SetMarginVertical(std::int32_t margin);
    std::int32_t GetMarginVertical() const;
    void SetFontName(const std::string& name);
    const std::string& GetFontName() const;
    void SetFontSize(double size);
    double GetFontSize() const;
    void SetSpacing(double value);
    double GetSpacing() const;
    void SetAngle(double degrees);
    double GetAngle() const;
    // 1: outline and drop shadow; 3: opaque box.
    void SetBorderStyle(std::int32_t value);
    std::int32_t GetBorderStyle() const;
    void SetOutline(double width);
    double GetOutline() const;
    void SetShadow(double depth);
    double GetShadow() const;
    // The numpad position, 1 (bottom left) to 9 (top right).
    void SetAlignment(std::int32_t value);
    std::int32_t GetAlignment() const;
    void SetBlur(double strength);
    double GetBlur() const;
    void SetScaleX(double scale);
    double GetScaleX() const;
    void SetScaleY(double scale);
    double GetScaleY() const;
    // Packed as the renderer reads ASS colours: red in the top byte, then green, then blue,
    // and 0 in the lowest byte.
    void SetPrimaryColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    std::uint32_t GetPrimaryColour() const;
    void SetSecondaryColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    std::uint32_t GetSecondaryColour() const;
    void SetOutlineColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    std::uint32_t GetOutlineColour() const;
    void SetBackColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    std::uint32_t GetBackColour() const;
    // Bits: 1 bold, 2 italic, 4 underline, 8 strike-out.
    void SetFontStyle(std::int32_t flags);
    std::int32_t GetFontStyle() const;

private:
    static constexpr double kNotSet = SETTING_DEFAULT_VALUE;
    static constexpr std::uint32_t kColourNotSet = SETTING_DEFAULT_VALUE;

    // One aggregate, so that the copy constructor and the assignment take every field at once.
    struct Style {
        std::int32_t marginLeft = SETTING_DEFAULT_VALUE;
        std::int32_t marginRight = SETTING_DEFAULT_VALUE;
        std::int32_t marginVertical = SETTING_DEFAULT_VALUE;
        std::string fontName;
        double fontSize = kNotSet;
        double spacing = kNotSet;
        double angle = kNotSet;
        std::int32_t borderStyle = SETTING_DEFAULT_VALUE;
        double outline = kNotSet;
        double shadow = kNotSet;
        std::int32_t alignment = SETTING_DEFAULT_VALUE;
        double blur = kNotSet;
        double scaleX = kNotSet;
        double scaleY = kNotSet;
        std::uint32_t primaryColour = kColourNotSet;
        std::uint32_t secondaryColour = kColourNotSet;
        std::uint32_t outlineColour = kColourNotSet;
        std::uint32_t backColour = kColourNotSet;
        std::int32_t fontStyle = SETTING_DEFAULT_VALUE;
    };
    Style style;
};

} // namespace Zorvan::Proc

#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Padding around the frame: the margins, their colour, and for the tiled modes the gaps
// between the copies of the frame.
class ZORVAN_SETTINGS_EXPORT SettingsEffectPad : public Settings {
public:
    // In modes 1 and 2 the colour shows only in the gaps. No other values exist.
    enum class Mode : std::int32_t { Fill = 0, Tile = 1, TileMirrored = 2 };

    static const std::string CLASS_ID;

    static const std::string s_mode;   // "mode"
    static const std::string s_left;   // "left"
    static const std::string s_right;  // "right"
    static const std::string s_top;    // "top"
    static const std::string s_bottom; // "bottom"
    static const std::string s_red;    // "r"
    static const std::string s_green;  // "g"
    static const std::string s_blue;   // "b"
    static const std::string s_gapX;   // "gapx"
    static const std::string s_gapY;   // "gapy"
    // The ten keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    // Mode 0 with no margins.
    SettingsEffectPad() = default;
    // No margins, opaque black, no gaps.
    explicit SettingsEffectPad(Mode mode);
    // The margins, opaque black, no gaps.
    SettingsEffectPad(const CropInfo& crop, Mode mode);
    // Mode 0, the margins in the colour, no gaps.
    SettingsEffectPad(const CropInfo& crop, const Color& color);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // No margin at all; the gaps do not count.
    bool IsEmpty() const override;
    // Map form over s_params, every value by std::stoi: "mode" stored unchecked; the margins
    // stored all four only when one is not 0; "r", "g", "b" (0 when absent) always packed into
    // the colour, low 8 bits each, alpha 255; "gapx", "gapy" stored when present.
    void Deserialize(const std::string& options) override;

    // Mode and margins; then in modes 1 and 2 the gaps, and with both gaps 0 nothing more
    // (no colour shows); then the colour. Throws std::logic_error "Unknown mode" for a mode
    // outside 0..2 once mode and margins agree.
    bool operator==(const SettingsEffectPad& other) const;

    // The only setters: the gaps have no constructor. Each stores unchecked.
    void SetGapX(std::uint32_t value);
    void SetGapY(std::uint32_t value);

    Mode GetMode() const;
    const CropInfo& GetCrop() const;
    Color GetColor() const;
    std::uint32_t GetGapX() const;
    std::uint32_t GetGapY() const;

private:
    Mode mode = Mode::Fill;
    CropInfo crop;
    Color color = 0xFF000000U; // opaque black
    std::uint32_t gapX = 0;
    std::uint32_t gapY = 0;
};

} // namespace Zorvan::Proc

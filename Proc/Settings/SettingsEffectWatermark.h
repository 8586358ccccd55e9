#pragma once
#include <cstdint>
#include <limits>

#include "Proc/Settings/SettingsEffectImageBlender.h"
#include "Proc/Settings/Types.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

// One image placed over the frame, with a constant, blinking or time-limited opacity; it answers
// with the blend to run at a time. Setters only: option strings do not describe a watermark.
// Keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectWatermark : public Settings {
public:
    static const std::string CLASS_ID;

    // The mark of a phase or interval that is not set: the smallest 64-bit value.
    static constexpr avTime UNDEFINED_TIME = std::numeric_limits<avTime>::min();

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Every setter checks before it stores and throws std::invalid_argument (with the stack).
    // Opacity 0..255, else "Invalid opacity value"; a constant overlay: no blinking, no interval.
    void SetParamsOverlay(int opacity);
    // Opacity as above, checked first; then on at least 1 and off at least 0, else "Invalid
    // duration parameters". Visible for `on`, hidden for `off`, over and over; no interval.
    void SetParamsBlink(int opacity, avTime on, avTime off);
    // Begin at least 0 and end at least 1, else "Invalid time interval"; the two are not
    // compared. Fully opaque within [begin, end), no blinking.
    void SetParamsShow(avTime begin, avTime end);
    // Both at least 0, or both negative for centred (stored as -1, -1); one negative and one
    // not: "Invalid position parameters".
    void SetParamsPosition(int x, int y);

    // The blend at `time` of an `overlay` image over a `frame`: the position (centred where
    // negative), made even by clearing the lowest bit, and the opacity of the moment over 255.
    SettingsEffectImageBlender GetBlendSettings(avTime time, const Conf::FrameInfo& overlay,
                                                const Conf::FrameInfo& frame) const;

    std::int32_t GetOpacity() const;
    avTime GetBlinkOn() const;
    avTime GetBlinkOff() const;
    avTime GetShowBegin() const;
    avTime GetShowEnd() const;
    std::int32_t GetPositionX() const;
    std::int32_t GetPositionY() const;

private:
    // Neutral defaults: a fully opaque constant overlay, centred.
    std::int32_t opacity = 255;
    avTime blinkOn = UNDEFINED_TIME;
    avTime blinkOff = UNDEFINED_TIME;
    avTime showBegin = UNDEFINED_TIME;
    avTime showEnd = UNDEFINED_TIME;
    std::int32_t positionX = -1;
    std::int32_t positionY = -1;
};

} // namespace Zorvan::Proc

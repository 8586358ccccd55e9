#include "Proc/Settings/SettingsEffectWatermark.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

void CheckOpacity(int opacity)
{
    if (opacity < 0 || opacity > 255) {
        ThrowInvalidArgument("Invalid opacity value");
    }
}

// Centred where the position is negative, then made even, as the renderer places images on
// even pixels.
std::int32_t Place(std::int32_t position, std::uint32_t frameSide, std::uint32_t overlaySide)
{
    const std::int32_t placed =
        position < 0 ? static_cast<std::int32_t>((static_cast<std::int64_t>(frameSide) - overlaySide) / 2) : position;
    return placed & ~1;
}

} // namespace

const std::string SettingsEffectWatermark::CLASS_ID ZORVAN_INIT_STRINGS = "EffectWatermark";

const std::string& SettingsEffectWatermark::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectWatermark::Clone() const
{
    return std::make_unique<SettingsEffectWatermark>(*this);
}

void SettingsEffectWatermark::SetParamsOverlay(int newOpacity)
{
    CheckOpacity(newOpacity);
    opacity = newOpacity;
    blinkOn = UNDEFINED_TIME;
    blinkOff = UNDEFINED_TIME;
    showBegin = UNDEFINED_TIME;
    showEnd = UNDEFINED_TIME;
}

void SettingsEffectWatermark::SetParamsBlink(int newOpacity, avTime on, avTime off)
{
    CheckOpacity(newOpacity);
    if (on < 1 || off < 0) {
        ThrowInvalidArgument("Invalid duration parameters");
    }
    opacity = newOpacity;
    blinkOn = on;
    blinkOff = off;
    showBegin = UNDEFINED_TIME;
    showEnd = UNDEFINED_TIME;
}

void SettingsEffectWatermark::SetParamsShow(avTime begin, avTime end)
{
    if (begin < 0 || end < 1) {
        ThrowInvalidArgument("Invalid time interval");
    }
    showBegin = begin;
    showEnd = end;
    opacity = 255;
    blinkOn = UNDEFINED_TIME;
    blinkOff = UNDEFINED_TIME;
}

void SettingsEffectWatermark::SetParamsPosition(int x, int y)
{
    if ((x < 0) != (y < 0)) {
        ThrowInvalidArgument("Invalid position parameters");
    }
    positionX = x < 0 ? -1 : x;
    positionY = y < 0 ? -1 : y;
}

SettingsEffectImageBlender SettingsEffectWatermark::GetBlendSettings(avTime time, const Conf::FrameInfo& overlay,
                                                                     const Conf::FrameInfo& frame) const
{
    const std::int32_t x = Place(positionX, frame.width, overlay.width);
    const std::int32_t y = Place(positionY, frame.height, overlay.height);

    std::int32_t visible = opacity;
    if (blinkOn != UNDEFINED_TIME) {
        // Summed without overflow; a negative time has a negative remainder, which shows.
        const auto period =
            static_cast<avTime>(static_cast<std::uint64_t>(blinkOn) + static_cast<std::uint64_t>(blinkOff));
        visible = time % period < blinkOn ? opacity : 0;
    } else if (showBegin != UNDEFINED_TIME) {
        visible = showBegin <= time && time < showEnd ? opacity : 0;
    }
    return SettingsEffectImageBlender(x, y, static_cast<float>(visible) / 255.0F,
                                      SettingsEffectColorBlender::BlendMode::Normal);
}

std::int32_t SettingsEffectWatermark::GetOpacity() const
{
    return opacity;
}

avTime SettingsEffectWatermark::GetBlinkOn() const
{
    return blinkOn;
}

avTime SettingsEffectWatermark::GetBlinkOff() const
{
    return blinkOff;
}

avTime SettingsEffectWatermark::GetShowBegin() const
{
    return showBegin;
}

avTime SettingsEffectWatermark::GetShowEnd() const
{
    return showEnd;
}

std::int32_t SettingsEffectWatermark::GetPositionX() const
{
    return positionX;
}

std::int32_t SettingsEffectWatermark::GetPositionY() const
{
    return positionY;
}

} // namespace Zorvan::Proc

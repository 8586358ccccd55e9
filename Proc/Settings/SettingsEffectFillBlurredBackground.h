#pragma once
#include <cstdint>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Fills the frame outside a rectangle with a blurred copy of the picture: the blur radius and
// the rectangle relative to the frame.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFillBlurredBackground : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key by key with GetOption: "radius" as int, then "rect_left", "rect_top", "rect_right",
    // "rect_bottom" as double, each stored unchecked when present.
    void Deserialize(const std::string& options) override;

    // Each stores unchecked.
    void SetRadius(std::int32_t value);
    void SetRect(const CropInfoF& value);

    std::int32_t GetRadius() const;
    const CropInfoF& GetRect() const;

private:
    std::int32_t radius = 0;            // no blur
    CropInfoF rect{0.0, 1.0, 0.0, 1.0}; // the whole frame: nothing outside to fill
};

} // namespace Zorvan::Proc

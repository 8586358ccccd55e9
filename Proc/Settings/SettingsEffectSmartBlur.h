#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Part 6.1: smart blur, eight ints (names left open by Part 6.1: a radius, a threshold, a
// region given by its right and bottom edges after its left and top edges, a quality and a
// mode). A hyphen row of Part 1.5: it keeps the base's IsEqualTo, IsEmpty and Deserialize,
// and offers the public, non-virtual operator== of Part 6.1.
class ZORVAN_SETTINGS_EXPORT SettingsEffectSmartBlur : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Part 6.1: ints 1, 2, 7, 8 directly; 3 and 4 only through their differences from 5 and
    // 6 (right - left, bottom - top, in 32-bit wrap-around), so a region shifted as a whole
    // compares equal.
    bool operator==(const SettingsEffectSmartBlur& other) const;

    void SetRadius(int radius);
    void SetThreshold(int threshold);
    void SetRight(int right);
    void SetBottom(int bottom);
    void SetLeft(int left);
    void SetTop(int top);
    void SetQuality(int quality);
    void SetMode(int mode);

    int GetRadius() const;
    int GetThreshold() const;
    int GetRight() const;
    int GetBottom() const;
    int GetLeft() const;
    int GetTop() const;
    int GetQuality() const;
    int GetMode() const;

private:
    // Defaults left open by Part 6.1: all 0, the stage changes nothing.
    int radius = 0;
    int threshold = 0;
    int right = 0;
    int bottom = 0;
    int left = 0;
    int top = 0;
    int quality = 0;
    int mode = 0;
};

} // namespace Zorvan::Proc

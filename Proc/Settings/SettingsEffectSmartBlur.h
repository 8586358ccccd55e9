#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Smart blur, eight ints: a radius, a threshold, a region given by its right and bottom edges
// after its left and top edges, a quality and a mode. It keeps the base's IsEqualTo, IsEmpty
// and Deserialize; callers compare two records with the public, non-virtual operator==.
class ZORVAN_SETTINGS_EXPORT SettingsEffectSmartBlur : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Ints 1, 2, 7, 8 directly; 3 and 4 only through their differences from 5 and 6 (right -
    // left, bottom - top, in 32-bit wrap-around), so a region shifted as a whole compares
    // equal; kept so on purpose.
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
    // Neutral defaults: all 0, the stage changes nothing.
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

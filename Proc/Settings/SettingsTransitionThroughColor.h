#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A dip through a solid colour: the picture fades to the key colour and the next one fades in
// from it.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionThroughColor : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // "r", "g", "b", "a" count only all together: with one missing nothing changes. They are read
    // with std::stof in this order and stored after the last, so a bad value changes nothing.
    void Deserialize(const std::string& options) override;

    // Red, green, blue and alpha, stored unchecked.
    void SetColorRGB(float red, float green, float blue, float alpha);
    float GetKeyColorR() const;
    float GetKeyColorG() const;
    float GetKeyColorB() const;
    float GetKeyColorA() const;

private:
    float keyColorR = 1.0F;
    float keyColorG = 1.0F;
    float keyColorB = 1.0F;
    float keyColorA = 1.0F;
};

} // namespace Zorvan::Proc

#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Shifts pixels by a displacement map: a horizontal and a vertical shift, each -1.0..1.0, and
// an intensity. The option keys are the static s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDisplacementMap : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_xShift;    // "x-shift"
    static const std::string s_yShift;    // "y-shift"
    static const std::string s_intensity; // "intensity"
    // The three keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // No shift and an intensity of exactly 1.
    bool IsEmpty() const override;
    // Map form over s_params: the two shifts by std::stof through SetNewValue with -1.0..1.0 and
    // the one text "Invalid value" (EffectException), then "intensity" by std::stoul, stored.
    void Deserialize(const std::string& options) override;

    // The three fields, exact.
    bool operator==(const SettingsEffectDisplacementMap& other) const;

    // Stores `value` into `target` when it lies in `range`, bounds included; else, and for
    // not-a-number, throws EffectException with `message` and leaves `target` as it was.
    static void SetNewValue(float value, const std::pair<float, float>& range, const std::string& message,
                            float& target);

    // -1.0..1.0, else EffectException "Invalid value for X shift" and the field stays.
    void SetXShift(float value);
    // -1.0..1.0, else EffectException "Invalid value for Yshift" and the field stays.
    void SetYShift(float value);
    void SetIntensity(unsigned int value);

    float GetXShift() const;
    float GetYShift() const;
    unsigned int GetIntensity() const;

private:
    // Neutral defaults: no shift at the intensity of 1, which IsEmpty reports as empty.
    float xShift = 0.0F;
    float yShift = 0.0F;
    std::uint32_t intensity = 1;
};

} // namespace Zorvan::Proc

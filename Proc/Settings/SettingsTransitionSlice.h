#pragma once
#include <cstdint>
#include <string>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Cuts the frame into slices and plays a base transition on each, the slices starting a share
// of the time apart. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsTransitionSlice : public Settings {
public:
    static const std::string CLASS_ID;

    // The renderer gives the numbers their meaning. Option strings accept 0..10, 0..1, 0..3 and
    // 0..1 in turn; the setters store any value.
    enum class SlicesType : std::uint32_t {};
    enum class SlicesNumberingRule : std::uint32_t {};
    enum class SlicesDirectionRule : std::uint32_t {};
    enum class BaseTransitionType : std::uint32_t {};

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form. Applied in this order: "max_blur", "blur_power", "motion_power",
    // "slices_count", "percent_of_slices_times_shift" through their setters, then
    // "slices_type", "slices_numbering_rule", "slices_direction_rule", "base_transition_type"
    // by std::stoul, each refused with SettingsException "... must be less then: " and the
    // largest value it accepts.
    void Deserialize(const std::string& options) override;

    // Each check throws SettingsException and leaves the field; a not-a-number passes.
    // 0.0..1.0: "Blur scale must be in [0.0, 1.0] range".
    void SetMaxBlurScale(double value);
    // 0.0 and above: "Motion power must be greater or equal then 0."
    void SetMotionBoostPower(double value);
    // 0.0 and above: "Blur power must be greater or equal then 0."
    void SetBlurBoostPower(double value);
    // 0.0..1.0: "\"percent_of_slices_times_shift\" must be greater or equal then 0 and less or
    // equal 1.0".
    void SetPercentOfSlicesTimeShift(double value);
    // 2 and above: "Slices count must be greater or equal to 2."
    void SetSlicesCount(int value);
    // Stored unchecked.
    void SetSlicesType(SlicesType value);
    void SetSlicesNumberingRule(SlicesNumberingRule value);
    void SetSlicesDirectionRule(SlicesDirectionRule value);
    void SetBaseTransitionType(BaseTransitionType value);

    double GetMaxBlurScale() const;
    double GetMotionBoostPower() const;
    double GetBlurBoostPower() const;
    double GetPercentOfSlicesTimeShift() const;
    SlicesType GetSlicesType() const;
    int GetSlicesCount() const;
    SlicesNumberingRule GetSlicesNumberingRule() const;
    SlicesDirectionRule GetSlicesDirectionRule() const;
    BaseTransitionType GetBaseTransitionType() const;

private:
    // Neutral defaults: no blur or motion boost, all slices at once, the fewest slices allowed
    // and the first member of each enumeration.
    double maxBlurScale = 0.0;
    double motionBoostPower = 0.0;
    double blurBoostPower = 0.0;
    double percentOfSlicesTimeShift = 0.0;
    SlicesType slicesType{0};
    std::int32_t slicesCount = 2;
    SlicesNumberingRule slicesNumberingRule{0};
    SlicesDirectionRule slicesDirectionRule{0};
    BaseTransitionType baseTransitionType{0};
};

} // namespace Zorvan::Proc

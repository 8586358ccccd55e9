#include "Proc/Settings/SettingsTransitionSlice.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

namespace {

// The value of an enumeration key when it is at most `largest`; else SettingsException with the
// text and `largest` appended. The text names the largest value accepted, not the first one
// refused, and a value equal to the number passes: saved projects and tools rely on it.
template <class E>
void ReadBounded(const Settings::OptionsMap& map, const char* key, unsigned long largest, const char* text, E& field)
{
    if (const auto value = MapForm::Find<unsigned long>(map, key)) {
        if (*value > largest) {
            ThrowSettings(text + std::to_string(largest));
        }
        field = static_cast<E>(*value);
    }
}

} // namespace

const std::string SettingsTransitionSlice::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionSlice";

const std::string& SettingsTransitionSlice::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSlice::Clone() const
{
    return std::make_unique<SettingsTransitionSlice>(*this);
}

void SettingsTransitionSlice::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"max_blur", "blur_power", "motion_power", "slices_type", "slices_count",
                                             "slices_numbering_rule", "slices_direction_rule",
                                             "percent_of_slices_times_shift", "base_transition_type"});
    // The checked numbers first, the enumerations last: a failure leaves the keys before it
    // applied, and which those are is part of what callers see.
    if (const auto value = MapForm::Find<double>(map, "max_blur")) {
        SetMaxBlurScale(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "blur_power")) {
        SetBlurBoostPower(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "motion_power")) {
        SetMotionBoostPower(*value);
    }
    if (const auto value = MapForm::Find<int>(map, "slices_count")) {
        SetSlicesCount(*value);
    }
    if (const auto value = MapForm::Find<double>(map, "percent_of_slices_times_shift")) {
        SetPercentOfSlicesTimeShift(*value);
    }
    ReadBounded(map, "slices_type", 10, "Slices type must be less then: ", slicesType);
    ReadBounded(map, "slices_numbering_rule", 1, "Slices numbering rule must be less then: ", slicesNumberingRule);
    ReadBounded(map, "slices_direction_rule", 3, "Slices direction rule must be less then: ", slicesDirectionRule);
    ReadBounded(map, "base_transition_type", 1, "Base transition type must be less then: ", baseTransitionType);
}

void SettingsTransitionSlice::SetMaxBlurScale(double value)
{
    if (value < 0.0 || value > 1.0) {
        ThrowSettings("Blur scale must be in [0.0, 1.0] range");
    }
    maxBlurScale = value;
}

void SettingsTransitionSlice::SetMotionBoostPower(double value)
{
    if (value < 0.0) {
        ThrowSettings("Motion power must be greater or equal then 0.");
    }
    motionBoostPower = value;
}

void SettingsTransitionSlice::SetBlurBoostPower(double value)
{
    if (value < 0.0) {
        ThrowSettings("Blur power must be greater or equal then 0.");
    }
    blurBoostPower = value;
}

void SettingsTransitionSlice::SetPercentOfSlicesTimeShift(double value)
{
    if (value < 0.0 || value > 1.0) {
        ThrowSettings("\"percent_of_slices_times_shift\" must be greater or equal then 0 and less or equal 1.0");
    }
    percentOfSlicesTimeShift = value;
}

void SettingsTransitionSlice::SetSlicesCount(int value)
{
    if (value < 2) {
        ThrowSettings("Slices count must be greater or equal to 2.");
    }
    slicesCount = value;
}

void SettingsTransitionSlice::SetSlicesType(SlicesType value)
{
    slicesType = value;
}

void SettingsTransitionSlice::SetSlicesNumberingRule(SlicesNumberingRule value)
{
    slicesNumberingRule = value;
}

void SettingsTransitionSlice::SetSlicesDirectionRule(SlicesDirectionRule value)
{
    slicesDirectionRule = value;
}

void SettingsTransitionSlice::SetBaseTransitionType(BaseTransitionType value)
{
    baseTransitionType = value;
}

double SettingsTransitionSlice::GetMaxBlurScale() const
{
    return maxBlurScale;
}

double SettingsTransitionSlice::GetMotionBoostPower() const
{
    return motionBoostPower;
}

double SettingsTransitionSlice::GetBlurBoostPower() const
{
    return blurBoostPower;
}

double SettingsTransitionSlice::GetPercentOfSlicesTimeShift() const
{
    return percentOfSlicesTimeShift;
}

SettingsTransitionSlice::SlicesType SettingsTransitionSlice::GetSlicesType() const
{
    return slicesType;
}

int SettingsTransitionSlice::GetSlicesCount() const
{
    return slicesCount;
}

SettingsTransitionSlice::SlicesNumberingRule SettingsTransitionSlice::GetSlicesNumberingRule() const
{
    return slicesNumberingRule;
}

SettingsTransitionSlice::SlicesDirectionRule SettingsTransitionSlice::GetSlicesDirectionRule() const
{
    return slicesDirectionRule;
}

SettingsTransitionSlice::BaseTransitionType SettingsTransitionSlice::GetBaseTransitionType() const
{
    return baseTransitionType;
}

} // namespace Zorvan::Proc

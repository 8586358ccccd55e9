// The slice transition: checked setters, and option keys applied in an order of their own with
// enumeration limits whose texts name the largest value accepted.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "Proc/Settings/SettingsTransitionSlice.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::CheckParses;
using ZorvanTest::Outcome;
using ZorvanTest::Values;
using S = SettingsTransitionSlice;

namespace {

const char* const kDefaults = "[0.0,0.0,0.0,0.0,0,2,0,0,0]";
const double kTiny = std::numeric_limits<double>::denorm_min();

} // namespace

TEST(Slice, SettersCheckTheirBoundsInclusively)
{
    const std::string blur = "SettingsException: Blur scale must be in [0.0, 1.0] range";
    const std::string shift = "SettingsException: \"percent_of_slices_times_shift\" must be greater or equal then 0 "
                              "and less or equal 1.0";
    // {call, outcome, values afterwards}: a refusal leaves the defaults.
    const std::vector<std::tuple<std::function<void(S&)>, std::string, const char*>> cases{
        {[](S& s) { s.SetMaxBlurScale(1.0), s.SetPercentOfSlicesTimeShift(1.0); }, "", "[1.0,0.0,0.0,1.0,0,2,0,0,0]"},
        {[](S& s) { s.SetMaxBlurScale(-kTiny); }, blur, kDefaults},
        {[](S& s) { s.SetMaxBlurScale(NAN); }, "", "[null,0.0,0.0,0.0,0,2,0,0,0]"},
        {[](S& s) { s.SetMaxBlurScale(std::nextafter(1.0, 2.0)); }, blur, kDefaults},
        {[](S& s) { s.SetMotionBoostPower(-kTiny); },
         "SettingsException: Motion power must be greater or equal then 0.", kDefaults},
        {[](S& s) { s.SetBlurBoostPower(-kTiny); }, "SettingsException: Blur power must be greater or equal then 0.",
         kDefaults},
        {[](S& s) { s.SetPercentOfSlicesTimeShift(-kTiny); }, shift, kDefaults},
        {[](S& s) { s.SetPercentOfSlicesTimeShift(std::nextafter(1.0, 2.0)); }, shift, kDefaults},
        {[](S& s) { s.SetSlicesCount(1); }, "SettingsException: Slices count must be greater or equal to 2.",
         kDefaults},
        // The enumerations' setters store anything.
        {[](S& s) { s.SetSlicesType(S::SlicesType{99}), s.SetBaseTransitionType(S::BaseTransitionType{7}); }, "",
         "[0.0,0.0,0.0,0.0,99,2,0,0,7]"},
    };
    for (const auto& [call, outcome, values] : cases) {
        S record;
        EXPECT_EQ(Outcome([&] { call(record); }), outcome);
        EXPECT_EQ(Values(record), values) << outcome;
    }
}

TEST(Slice, KeysApplyNumbersFirstAndNameTheLargestAcceptedValue)
{
    const std::string type = "SettingsException: Slices type must be less then: 10";
    CheckParses<S>(
        {}, {
                {"slices_type=10:slices_numbering_rule=1:slices_direction_rule=3:base_transition_type=1", "",
                 R"({"slicesType":10,"slicesNumberingRule":1,"slicesDirectionRule":3,)"
                 R"("baseTransitionType":1})"},
                {"slices_type=11", type, "{}"},
                {"slices_type=-1", type, "{}"},
                {"slices_numbering_rule=2", "SettingsException: Slices numbering rule must be less then: 1", "{}"},
                {"base_transition_type=2:slices_direction_rule=3",
                 "SettingsException: Base transition type must be less then: 1", R"({"slicesDirectionRule":3})"},
                {"slices_direction_rule=4", "SettingsException: Slices direction rule must be less then: 3", "{}"},
                {"slices_type=11:max_blur=2", "SettingsException: Blur scale must be in [0.0, 1.0] range", "{}"},
                {"slices_type=11:percent_of_slices_times_shift=0:slices_count=5", type, R"({"slicesCount":5})"},
                {"percent_of_slices_times_shift=0.5:slices_count=1:motion_power=3:blur_power=2",
                 "SettingsException: Slices count must be greater or equal to 2.",
                 R"({"motionBoostPower":3.0,"blurBoostPower":2.0})"},
            });
}

// Motion transitions and the transition with effects, read back as the values of the
// catalogue's fields in field order (0.9 held as a float prints 0.8999999761581421).
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectGlitchMpeg.h"
#include "Proc/Settings/SettingsTransitionModifiedMotionSpin.h"
#include "Proc/Settings/SettingsTransitionMotionSpin.h"
#include "Proc/Settings/SettingsTransitionParallax.h"
#include "Proc/Settings/SettingsTransitionSlice.h"
#include "Proc/Settings/SettingsTransitionWhipe.h"
#include "Proc/Settings/SettingsTransitionWhoosh.h"
#include "Proc/Settings/SettingsTransitionWithEffects.h"
#include "Proc/Settings/SettingsTransitionZoomBlur.h"
#include "RecordSupport.h"

using namespace Zorvan::Proc;
using ZorvanTest::CheckValues;
using ZorvanTest::Fields;
using ZorvanTest::FormBDescription;
using ZorvanTest::Make;
using ZorvanTest::Opts;
using ZorvanTest::Outcome;
using ZorvanTest::Values;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kTiny = std::numeric_limits<double>::denorm_min();
const std::string kBlurText = "SettingsException: Blur scale must be in [0.0, 1.0] range";
const std::string kStod = typeid(std::invalid_argument).name(); // a standard conversion's failure

// Class id, options, how reading them ends, the values after.
using ParseRow = std::tuple<const char*, std::string, std::string, const char*>;

void CheckParseRows(const std::vector<ParseRow>& rows)
{
    for (const auto& [id, options, ends, values] : rows) {
        SCOPED_TRACE(std::string(id) + " " + options);
        const auto record = Make(id);
        EXPECT_EQ(Outcome([&] { record->Deserialize(options); }), ends);
        CheckValues(*record, values);
    }
}

} // namespace

// Each key's conversion and check, in the order a failure shows: keys before the failing one stay.
TEST(MotionTransitions, KeysChecksAndOrder)
{
    const std::string hText = "SettingsException: Invalid horizontal direction";
    const std::string typeText = "SettingsException: Invalid type";
    CheckParseRows({
        {"TransitionWhipe", "", "", "[0.3,3.0,3.0,1,0]"},
        {"TransitionWhipe",
         "horizontal_direction=-1:vertical_direction=1:max_blur=1:motion_boost_power=-2:"
         "blur_boost_power=0",
         "", "[1.0,-2.0,0.0,-1,1]"},
        {"TransitionWhipe", "horizontal_direction=2", hText, "[0.3,3.0,3.0,1,0]"},
        {"TransitionWhipe", "vertical_direction=-2:horizontal_direction=0",
         "SettingsException: Invalid vertical direction", "[0.3,3.0,3.0,0,0]"},
        {"TransitionWhipe", "max_blur=1.5:motion_boost_power=7:horizontal_direction=-1",
         "SettingsException: Invalid max_blur parameter", "[0.3,3.0,3.0,-1,0]"},
        // The motion spin reads its direction unsigned, so -1 wraps and is refused; the whoosh checks nothing.
        {"TransitionMotionSpin", "direction=1:max_motion_blur=1", "", "[1.0,1]"},
        {"TransitionMotionSpin", "direction=2:max_motion_blur=0.5", "SettingsException: Invalid direction", "[0.5,0]"},
        {"TransitionMotionSpin", "direction=-1", "SettingsException: Invalid direction", "[0.0,0]"},
        {"TransitionMotionSpin", "max_motion_blur=1.5:direction=1", kBlurText, "[0.0,0]"},
        {"TransitionWhoosh", "direction=2", "", "[0.0,2]"},
        {"TransitionWhoosh", "direction=-1", "", "[0.0,-1]"},
        {"TransitionWhoosh", "max_motion_blur=-0.5:direction=1", kBlurText, "[0.0,0]"},
        // Modified spin: a refused double is stored first; blur power 0 passes, motion power 0 does not.
        {"TransitionModifiedMotionSpin", "max_blur=5:direction=1", kBlurText, "[5.0,0,0.0,1.0,1.0]"},
        {"TransitionModifiedMotionSpin", "direction=-1:additional_source_frame_rotate_angle=90",
         "SettingsException: Invalid direction", "[0.0,0,0.0,1.0,1.0]"},
        {"TransitionModifiedMotionSpin",
         "motion_power=0:blur_power=0:additional_source_frame_rotate_angle=-45:direction=1",
         "SettingsException: Motion power must be greater than 0.", "[0.0,1,-45.0,0.0,0.0]"},
        {"TransitionModifiedMotionSpin", "blur_power=-1:motion_power=2",
         "SettingsException: Blur power must be greater or equal to 0.", "[0.0,0,0.0,1.0,-1.0]"},
        // Parallax: a crop is true for any number but 0; the lens keys come after the blur.
        {"TransitionParallax",
         "speed_up=2:speed_mid=0.5:speed_down=-1:crop_up=-1:crop_down=0:max_motion_blur=0.25:max_zoom=1.5:"
         "max_distortion=-0.5",
         "", "[2.0,0.5,-1.0,true,false,0.25,1.5,-0.5]"},
        {"TransitionParallax", "max_zoom=2:max_motion_blur=1.5:crop_down=2", kBlurText,
         "[1.0,1.0,1.0,false,true,0.0,0.0,0.0]"},
        {"TransitionGlitch", "type=-1", "", "[-1]"},
        {"TransitionGlitch", "type=3", "", "[3]"},
        {"TransitionGlitch", "type=4", typeText, "[0]"},
        {"TransitionRageZoom", "type=1", "", "[1]"},
        {"TransitionRageZoom", "type=2", typeText, "[0]"},
        // The colour changes whole or not at all.
        {"TransitionThroughColor", "r=0.5", "", "[1.0,1.0,1.0,1.0]"},
        {"TransitionThroughColor", "R=0.5:g=0:b=0.25:A=0", "", "[0.5,0.0,0.25,0.0]"},
        {"TransitionThroughColor", "r=0.5:g=0:b=-:a=0", kStod, "[1.0,1.0,1.0,1.0]"},
        // Zoom blur: names in any letter case, values clamped by the setters, exponents read.
        {"TransitionZoomBlur", "type=inOUT:maxZoom=1.0:maxBlur=-1:boostPower=0.2:mixDuration=0.7", "",
         "[2,0.8999999761581421,0.0,1.0,0.5]"},
        {"TransitionZoomBlur", "type=OutIn:boostPower=2.5e1:maxBlur=0.25", "", "[3,0.0,0.25,25.0,0.0]"},
    });
}

TEST(MotionTransitions, ZoomBlurFailuresKeepWhatWasReadBefore)
{
    SettingsTransitionZoomBlur record;
    EXPECT_EQ(FormBDescription<std::invalid_argument>([&] { record.Deserialize("maxBlur=0.5:type=Sideways"); }),
              "Invalid zoom type: Sideways");
    EXPECT_EQ(Values(record), "[0,0.0,0.0,1.0,0.0]");
    EXPECT_EQ(
        FormBDescription<std::invalid_argument>([&] { record.Deserialize("type=out:maxBlur=1:maxZoom=x"); }, false),
        "The 'x' value of the 'maxZoom' option is not a number");
    EXPECT_EQ(Values(record), "[1,0.0,0.0,1.0,0.0]");
}

// Blur-scale setters: both ends taken, just outside refused with the field kept, NaN stored; the
// modified spin's setter takes anything.
TEST(MotionTransitions, BlurScaleSetters)
{
    using Row = std::tuple<const char*, const char*, std::function<void(Settings&, double)>, std::string>;
    const std::vector<Row> rows{
        {"TransitionWhipe", "maxBlurScale",
         [](Settings& s, double v) { dynamic_cast<SettingsTransitionWhipe&>(s).SetMaxBlurScale(v); },
         "SettingsException: Invalid max_blur parameter"},
        {"TransitionParallax", "maxMotionBlurScale",
         [](Settings& s, double v) { dynamic_cast<SettingsTransitionParallax&>(s).SetMaxMotionBlurScale(v); },
         kBlurText},
        {"TransitionModifiedMotionSpin", "maxBlurScale",
         [](Settings& s, double v) { dynamic_cast<SettingsTransitionModifiedMotionSpin&>(s).SetMaxBlurScale(v); }, ""},
    };
    for (const auto& [id, field, set, refused] : rows) {
        SCOPED_TRACE(id);
        const auto record = Make(id);
        set(*record, 0.0);
        set(*record, 1.0);
        EXPECT_EQ(Outcome([&] { set(*record, -kTiny); }), refused);
        EXPECT_EQ(Outcome([&] { set(*record, 5.0); }), refused);
        EXPECT_EQ(Fields(*record)[field], refused.empty() ? 5.0 : 1.0);
        set(*record, kNaN);
        EXPECT_TRUE(std::isnan(Fields(*record)[field].get<double>()));
    }
}

// Exact comparison of the listed fields; the parallax's lens is left out; a foreign record is a bad_cast.
TEST(MotionTransitions, Equality)
{
    using Row = std::tuple<const char*, const char*, const char*, bool>;
    const std::vector<Row> rows{
        {"TransitionWhipe", "max_blur=0.5:blur_boost_power=3", "max_blur=0.5", true},
        {"TransitionWhipe", "motion_boost_power=3.5", "", false},
        {"TransitionWhipe", "vertical_direction=1", "", false},
        {"TransitionMotionSpin", "direction=1", "", false},
        {"TransitionWhoosh", "direction=7:max_motion_blur=0.5", "direction=7:max_motion_blur=0.5", true},
        {"TransitionParallax", "max_zoom=2:max_distortion=1", "", true},
        {"TransitionParallax", "crop_down=1", "", false},
        {"TransitionParallax", "speed_mid=2", "", false},
    };
    for (const auto& [id, left, right, equal] : rows) {
        EXPECT_EQ(Make(id, {Opts(left)})->IsEqualTo(*Make(id, {Opts(right)})), equal) << id << " " << left;
    }
    EXPECT_THROW((void)SettingsTransitionMotionSpin().IsEqualTo(SettingsTransitionWhoosh()), std::bad_cast);
}

namespace {

// A nested record as the catalogue shows it: its class identifier and its fields.
std::string Nested(const std::string& id, const std::string& fields)
{
    return R"({"fields":)" + fields + R"(,"id":")" + id + "\"}";
}

const std::string kWhipe =
    Nested("TransitionWhipe",
           R"({"blurBoostPower":3.0,"hDirection":1,"maxBlurScale":0.3,"motionBoostPower":3.0,"vDirection":0})");
const std::string kMpeg = Nested("EffectGlitchMpeg", R"({"intensity":1.0,"privateParameters":[false,false,false]})");
const std::string kCam = Nested("EffectGlitchSecurityCam", R"({"constDistortion":0.15000000596046448,"intensity":1.0,)"
                                                           R"("randDistortion":1.399999976158142})");

// The fields of a composition: name, effects, transition and the three scalars.
std::string Composition(const std::string& effects, const std::string& transition, const char* scalars = "1.0,1.0,1.0")
{
    return "[\"\",[" + effects + "]," + transition + "," + scalars + "]";
}

} // namespace

// Every non-empty string starts from a composition without transition or effects (here a Whipe and
// an MPEG glitch were there), and a failure leaves it as far as it got.
TEST(TransitionWithEffects, OptionStringsBuildTheNestedRecords)
{
    const std::string notSuitable = "SettingsException: 'EffectBlurGaussian' effect not suitable for use here";
    const std::vector<std::array<std::string, 3>> rows{
        {"", "", Composition(kMpeg, kWhipe)},
        {R"(transition="TransitionWhipe")", "", Composition("", kWhipe)},
        {R"(transition="TransitionWhipe=max_blur=1:horizontal_direction=-1":effect7="EffectGlitchMpeg=intensity=0.25")"
         R"(:effect10="EffectGlitchMpeg")",
         "",
         Composition(Nested("EffectGlitchMpeg", R"({"intensity":0.25,"privateParameters":[false,false,false]})"),
                     Nested("TransitionWhipe", R"({"blurBoostPower":3.0,"hDirection":-1,"maxBlurScale":1.0,)"
                                               R"("motionBoostPower":3.0,"vDirection":0})"))},
        // Each name of the closed list builds its own class, with or without a nested string.
        {R"(transition="$$TransitionZoom$$=type=2")", "",
         Composition("", Nested("$$TransitionZoom$$", R"({"type":2})"))},
        {R"(transition="$$EffectWipe$$=direction=1")", "", Composition("", Nested("$$EffectWipe$$", "{}"))},
        {R"(transition="TransitionFlash=anything")", "", Composition("", Nested("TransitionFlash", "{}"))},
        {R"(transition="$$TransitionCrossfade$$")", "", Composition("", Nested("$$TransitionCrossfade$$", "{}"))},
        {R"(transition="TransitionCrossfade")",
         "SettingsException: Invalid transition for deserializing: 'TransitionCrossfade'", Composition("", "null")},
        {R"(effect9="EffectGlitchSecurityCam":effect0="EffectGlitchMpeg=")", "",
         Composition(kMpeg + "," + kCam, "null")},
        // Unquoted, a name is no value at all.
        {"transition=TransitionWhipe", "", Composition("", "null")},
        {R"(transition="transitionwhipe")",
         "SettingsException: Invalid transition for deserializing: 'transitionwhipe'", Composition("", "null")},
        {R"(effect3="EffectBlurGaussian=scale=2":transition="TransitionWhipe":effect2="EffectGlitchMpeg")", notSuitable,
         Composition(kMpeg, kWhipe)},
        // The transition is held before its own options are refused.
        {R"(transition="TransitionWhipe=max_blur=2":power_scale=3)", "SettingsException: Invalid max_blur parameter",
         Composition("", kWhipe, "1.0,3.0,1.0")},
        {R"(power_scale=-1:transition="TransitionWhipe")",
         "SettingsException: Invalid power_scale parameter. Must be greater or equal zero.", Composition("", "null")},
        {"transition_filling=0:intensity_multiplier=0.5",
         "SettingsException: Invalid transition_filling. Must be greater 0.0 and less or equal 1.0 (0.0; 1.0]",
         Composition("", "null", "1.0,1.0,0.5")},
        {R"(effect0="EffectGlitchMpeg=intensity=-1")",
         "SettingsException: Invalid intensity value. Must be greater or equal 0.0", Composition("", "null")},
    };
    for (const auto& [options, ends, values] : rows) {
        SettingsTransitionWithEffects record;
        record.SetTransition(std::make_shared<SettingsTransitionWhipe>());
        auto mpeg = std::make_shared<SettingsEffectGlitchMpeg>();
        mpeg->SetIntensity(1.0F);
        record.AddEffect(mpeg);
        EXPECT_EQ(Outcome([&] { record.Deserialize(options); }), ends) << options;
        EXPECT_EQ(Values(record), values) << options;
    }
}

// Each bound on both sides, a refused value keeps the field, NaN passes (JSON writes it as null).
TEST(TransitionWithEffects, SettersAndAddEffect)
{
    using W = SettingsTransitionWithEffects;
    const std::string filling =
        "SettingsException: Invalid transition_filling. Must be greater 0.0 and less or equal 1.0 (0.0; 1.0]";
    const std::string power = "SettingsException: Invalid power_scale parameter. Must be greater or equal zero.";
    const std::string intensity =
        "SettingsException: Invalid intensity_multiplier parameter. Must be greater then zero.";
    struct Row {
        void (W::*set)(double);
        double value;
        std::string ends;
        const char* scalars;
    };
    const std::vector<Row> rows{
        {&W::SetTransitionFilling, 0.0, filling, "1.0,1.0,1.0"},
        {&W::SetTransitionFilling, kTiny, "", "5e-324,1.0,1.0"},
        {&W::SetTransitionFilling, 1.0, "", "1.0,1.0,1.0"},
        {&W::SetTransitionFilling, std::nextafter(1.0, 2.0), filling, "1.0,1.0,1.0"},
        {&W::SetTransitionFilling, kNaN, "", "null,1.0,1.0"},
        {&W::SetPowerScale, 0.0, "", "1.0,0.0,1.0"},
        {&W::SetPowerScale, -kTiny, power, "1.0,1.0,1.0"},
        {&W::SetPowerScale, kNaN, "", "1.0,null,1.0"},
        {&W::SetIntensityMultiplier, 0.0, intensity, "1.0,1.0,1.0"},
        {&W::SetIntensityMultiplier, kTiny, "", "1.0,1.0,5e-324"},
        {&W::SetIntensityMultiplier, kNaN, "", "1.0,1.0,null"},
    };
    for (const auto& row : rows) {
        W record;
        EXPECT_EQ(Outcome([&] { (record.*row.set)(row.value); }), row.ends) << row.value;
        EXPECT_EQ(Values(record), Composition("", "null", row.scalars)) << row.value;
    }
    W record;
    record.AddEffect(std::make_shared<SettingsEffectGlitchMpeg>());
    EXPECT_EQ(Outcome([&] { record.AddEffect(std::make_shared<SettingsTransitionWhipe>()); }),
              "SettingsException: 'TransitionWhipe' effect not suitable for use here");
    EXPECT_EQ(record.GetEffects().size(), 1U);
    record.SetTransition(std::make_shared<SettingsTransitionSlice>());
    EXPECT_EQ(record.GetTransition()->GetClassId(), SettingsTransitionSlice::CLASS_ID);
}

// A clone shares the nested records: a change through one shows through the other.
TEST(TransitionWithEffects, CloneSharesNestedRecords)
{
    SettingsTransitionWithEffects record;
    record.Deserialize(R"(transition="TransitionWhipe":effect4="EffectGlitchMpeg")");
    const auto clone = record.Clone();
    const auto& copy = dynamic_cast<const SettingsTransitionWithEffects&>(*clone);
    EXPECT_EQ(copy.GetTransition(), record.GetTransition());
    EXPECT_EQ(copy.GetEffects(), record.GetEffects());
    dynamic_cast<SettingsTransitionWhipe&>(*record.GetTransition()).SetMaxBlurScale(0.75);
    EXPECT_EQ(dynamic_cast<const SettingsTransitionWhipe&>(*copy.GetTransition()).GetMaxBlurScale(), 0.75);
}

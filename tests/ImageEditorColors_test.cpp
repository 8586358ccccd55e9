// The image-editor colour records, read back through the catalogue's fields. The values given
// are exact floats, so a stored value prints as it was written.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <tuple>
#include <typeinfo>
#include <vector>

#include "Proc/Settings/SettingsEffectGIMPColorCorrection.h"
#include "Proc/Settings/SettingsEffectGIMPColorTemperature.h"
#include "Proc/Settings/SettingsEffectGIMPColorize.h"
#include "Proc/Settings/SettingsEffectGIMPHueSaturation.h"
#include "Proc/Settings/SettingsEffectGIMPShadowsHightlights.h"
#include "TestSupport.h"
#include "catalog/SettingsCatalog.h"

using namespace Zorvan::Proc;

namespace {

using C = SettingsEffectGIMPColorCorrection;
using T = SettingsEffectGIMPColorTemperature;
using Z = SettingsEffectGIMPColorize;
using HueSat = SettingsEffectGIMPHueSaturation;
using S = SettingsEffectGIMPShadowsHightlights;
using Json = nlohmann::ordered_json;
using Change = std::function<void(Settings&)>;
using Setter = std::function<void(Settings&, float)>;

template <class C>
Setter Set(void (C::*set)(float))
{
    return [set](Settings& s, float value) { (dynamic_cast<C&>(s).*set)(value); };
}

Setter Set(void (HueSat::*set)(HueSat::HueRange, float), int range)
{
    return [set, range](Settings& s, float value) {
        (dynamic_cast<HueSat&>(s).*set)(static_cast<HueSat::HueRange>(range), value);
    };
}

Change With(const Setter& set, float value)
{
    return [set, value](Settings& s) { set(s, value); };
}

Change Opts(const std::string& options)
{
    return [options](Settings& s) { s.Deserialize(options); };
}

std::unique_ptr<Settings> Make(const std::string& id, const std::vector<Change>& steps = {})
{
    auto record = Zorvan::SettingsCatalog::Find(id)->create();
    for (const Change& step : steps) {
        step(*record);
    }
    return record;
}

Json Fields(const Settings& s)
{
    return Zorvan::SettingsCatalog::Find(s.GetClassId())->FieldsToJson(s);
}

// Applies the change to a default record. The outcome is the number then held by the field (a JSON
// pointer without its slash), "-" for no change at all, or the text of an EffectException that changes nothing.
void Expect(const std::string& id, const std::string& field, const Change& change, const std::string& outcome)
{
    const auto record = Make(id);
    Json expected = Fields(*record);
    if (outcome.starts_with("Invalid")) {
        EXPECT_EQ(ZorvanTest::FormADescription<EffectException>([&] { change(*record); }), outcome);
    } else {
        change(*record);
        if (outcome != "-") {
            expected[Json::json_pointer("/" + field)] = std::stod(outcome);
        }
    }
    EXPECT_EQ(Fields(*record), expected);
}

const char* const kCorrection = "EffectGIMPColorCorrection";
const char* const kTemperature = "EffectGIMPColorTemperature";
const char* const kColorize = "EffectGIMPColorize";
const char* const kHueSat = "EffectGIMPHueSaturation";
const char* const kShadows = "EffectGIMPShadowsHightlights";

} // namespace

// Each key and its setter, first with a bound (stored as it is), then with a value beyond a bound:
// clamped, refused with the setter's own text or the option string's short one, or ignored.
TEST(ImageEditorColors, EachKeyAndSetterKeepsItsRange)
{
    const std::string kInvalid = "Invalid value";
    const std::string kTemp = "Invalid value for temperature";
    const std::string kIntensity = "Invalid value for intensity";
    // clang-format off
    std::vector<std::tuple<const char*, std::string, std::string, Setter, std::string, std::string, std::string,
                           std::string>> rows{
        // Class, key, field, setter; bound; beyond; what the setter and the key do with it.
        {kCorrection, "brightness", "brightness", Set(&C::SetBrightness), "-1", "1.5", "1", "1"},
        {kCorrection, "contrast", "contrast", Set(&C::SetContrast), "1", "-7", "-1", "-1"},
        {kTemperature, "original-temperature", "originalTemperature", Set(&T::SetOriginalTemperature), "1000", "999",
         kTemp, kInvalid},
        {kTemperature, "intended-temperature", "intendedTemperature", Set(&T::SetIntendedTemperature), "12000",
         "12001", kTemp, kInvalid},
        {kTemperature, "intensity", "intensity", Set(&T::SetIntensity), "0", "1.5", kIntensity, kInvalid},
        {kColorize, "hue", "hue", Set(&Z::SetHue), "1", "-0.5", "Invalid value for hue", kInvalid},
        {kColorize, "saturation", "saturation", Set(&Z::SetSaturation), "1", "2", "Invalid value for saturation",
         kInvalid},
        {kColorize, "lightness", "lightness", Set(&Z::SetLightness), "-1", "1.25", "Invalid value for lightness",
         kInvalid},
        {kColorize, "red", "red", Set(&Z::SetRed), "0", "-1", "Invalid value for red", kInvalid}, // not unset again
        {kColorize, "green", "green", Set(&Z::SetGreen), "1", "1.0625", "Invalid value for green", kInvalid},
        {kColorize, "blue", "blue", Set(&Z::SetBlue), "0.5", "-0.25", "Invalid value for blue", kInvalid},
        {kColorize, "intensity", "intensity", Set(&Z::SetIntensity), "1", "2", kIntensity, "-"}, // key not read
        {kHueSat, "overlap", "overlap", Set(&HueSat::SetOverlap), "100", "-5", "0", "0"},
        {kHueSat, "intensity", "intensity", Set(&HueSat::SetIntensity), "0", "3", "1", "1"},
        {kShadows, "shadows", "shadows", Set(&S::SetShadows), "-100", "500", "100", kInvalid},
        {kShadows, "shadows-correct", "shadowsColorCorrect", Set(&S::SetShadowsColorCorrect), "0", "-1", "0", kInvalid},
        {kShadows, "highlights", "highlights", Set(&S::SetHighlights), "100", "-101", "-100", kInvalid},
        {kShadows, "highlights-correct", "highlightsColorCorrect", Set(&S::SetHighlightsColorCorrect), "100", "100.5",
         "100", kInvalid},
        {kShadows, "whitepoint", "whitepoint", Set(&S::SetWhitepoint), "-10", "10.5", "10", kInvalid},
        {kShadows, "compress", "compress", Set(&S::SetCompress), "0", "101", "100", kInvalid},
        {kShadows, "intensity", "intensity", Set(&S::SetIntensity), "0", "-0.5", "0", kInvalid}};
    // clang-format on
    // The 21 hue-saturation keys, each at alternate bounds of its group.
    const char* const ranges[] = {"master", "red", "yellow", "green", "cyan", "blue", "magenta"};
    const std::tuple<std::string, void (HueSat::*)(HueSat::HueRange, float), int> groups[] = {
        {"hue", &HueSat::SetHue, 180},
        {"lightness", &HueSat::SetLightness, 100},
        {"saturation", &HueSat::SetSaturation, 100}};
    for (const auto& [group, set, limit] : groups) {
        for (int i = 0; i < 7; ++i) {
            const int sign = i % 2 == 0 ? -1 : 1;
            rows.emplace_back(kHueSat, group + "-" + ranges[i], group + "/" + std::to_string(i), Set(set, i),
                              std::to_string(sign * limit), std::to_string(-sign * 1000), std::to_string(-sign * limit),
                              std::to_string(-sign * limit));
        }
    }
    for (const auto& [id, key, field, set, bound, beyond, bySetter, byKey] : rows) {
        SCOPED_TRACE(key);
        Expect(id, field, With(set, std::stof(bound)), bound);
        Expect(id, field, Opts(key + "=" + bound), byKey == "-" ? "-" : bound);
        Expect(id, field, With(set, std::stof(beyond)), bySetter);
        Expect(id, field, Opts(key + "=" + beyond), byKey);
    }
    Expect(kTemperature, "", With(Set(&T::SetOriginalTemperature), NAN), kTemp); // NaN lies in no range
    Expect(kHueSat, "", With(Set(&HueSat::SetHue, 7), 5.0F), "-"); // a range beyond the enumeration writes nowhere
}

// A failing key leaves the keys read before it applied and those after it unread; each class reads
// in its own order, whatever the order of the option string.
TEST(ImageEditorColors, DeserializeReadsKeysInItsOwnOrder)
{
    const std::string effect = typeid(boost::wrapexcept<EffectException>).name();
    const std::string invalid = typeid(std::invalid_argument).name();
    const std::tuple<const char*, const char*, std::string, std::string> cases[] = {
        {kTemperature, "intensity=0.5:intended-temperature=500:original-temperature=7000", effect,
         "[7000.0,6500.0,1.0]"},
        {kColorize, "blue=0.5:lightness=-2:hue=0.25", effect, "[0.25,0.0,0.0,-1.0,-1.0,-1.0,0.0]"},
        {kHueSat, "intensity=0.5:overlap=1:saturation-master=-:lightness-cyan=3:hue-magenta=1:hue-master=2", invalid,
         "[[2.0,0.0,0.0,0.0,0.0,0.0,1.0],[0.0,0.0,0.0,0.0,3.0,0.0,0.0],[0.0,0.0,0.0,0.0,0.0,0.0,0.0],0.0,1.0]"},
        {kShadows, "compress=20:whitepoint=11:shadows=10", effect, "[10.0,100.0,0.0,50.0,0.0,50.0,1.0]"}};
    for (const auto& [id, options, thrown, values] : cases) {
        SCOPED_TRACE(options);
        const auto record = Make(id);
        EXPECT_EQ(ZorvanTest::ThrownType([&] { record->Deserialize(options); }), thrown);
        Json list = Json::array();
        for (const auto& value : Fields(*record)) {
            list.push_back(value);
        }
        EXPECT_EQ(list.dump(), values);
    }
}

// IsEmpty is exact for colour correction and for the hue-saturation shifts and intensity, nearly
// equal elsewhere; comparison is nearly equal throughout. 6500.0015 is three float steps above 6500,
// within the tolerance, 6500.002 four, beyond it; the smallest subnormal is near zero.
TEST(ImageEditorColors, EmptinessAndComparison)
{
    const float tiny = std::numeric_limits<float>::denorm_min();
    // Class; changes to a default record; IsEmpty; equal to a default record.
    const std::tuple<const char*, std::vector<Change>, bool, bool> cases[] = {
        {kCorrection, {}, true, true},
        {kCorrection, {With(Set(&C::SetBrightness), tiny)}, false, true},
        {kTemperature, {Opts("original-temperature=6500.0015")}, true, true},
        {kTemperature, {Opts("intended-temperature=6500.002")}, false, false},
        {kTemperature, {Opts("original-temperature=7000"), With(Set(&T::SetIntensity), tiny)}, true, false},
        {kColorize, {}, true, true},
        {kColorize, {With(Set(&Z::SetIntensity), tiny)}, true, true},
        {kColorize, {With(Set(&Z::SetIntensity), 0.5F)}, false, false},
        {kColorize, {Opts("red=0:green=0:blue=0")}, true, false},
        {kHueSat, {}, true, true},
        {kHueSat, {With(Set(&HueSat::SetSaturation, HueSat::Magenta), tiny)}, false, true},
        {kHueSat, {Opts("saturation-magenta=1")}, false, false},
        {kHueSat, {Opts("hue-master=5:intensity=0")}, true, false},
        {kHueSat, {Opts("lightness-yellow=1"), With(Set(&HueSat::SetIntensity), tiny)}, false, false},
        {kHueSat, {Opts("overlap=100")}, true, false},
        {kShadows, {}, true, true},
        {kShadows, {Opts("shadows-correct=0")}, false, false},
        {kShadows, {Opts("highlights=5"), With(Set(&S::SetIntensity), tiny)}, true, false},
        {kShadows, {With(Set(&S::SetWhitepoint), tiny)}, true, true}};
    for (const auto& [id, steps, empty, equal] : cases) {
        const auto record = Make(id, steps);
        SCOPED_TRACE(Fields(*record).dump());
        EXPECT_EQ(record->IsEmpty(), empty);
        EXPECT_EQ(record->IsEqualTo(*Make(id)), equal);
        EXPECT_EQ(Make(id)->IsEqualTo(*record->Clone()), equal);
    }
    const auto rgb = [](const char* options) { return Z(dynamic_cast<const Z&>(*Make(kColorize, {Opts(options)}))); };
    EXPECT_TRUE(!rgb("red=0:green=0").IsValidRGB() && rgb("red=0:green=0:blue=1").IsValidRGB());
    EXPECT_TRUE(rgb("blue=1") != Z() && !(T() != T()) && !(S() != S()));
}

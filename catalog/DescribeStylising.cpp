#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

// The stylising effects read their numbers straight into the fields, without a check; only the
// neon lamp reads key by key and clamps its intensity.
void DescribeStylising(DescriptionMap& descriptions)
{
    constexpr auto Map = OptionReader::Map;
    const auto add = [&descriptions](OptionDescription description) {
        descriptions[description.className] = std::move(description);
    };
    add(Described("SettingsEffectBlurGaussian", Map, {Double("scale"), Bool("fast", OptionBoolean::NonZero)},
                  {{OptionGroupKind::FirstWins,
                    {"scale", "fast"},
                    "",
                    0,
                    "given both, only the scale is read and the flag keeps its value"}}));
    add(Described("SettingsEffectMotionBlur", Map, {Double("scale")}));
    add(Described("SettingsEffectDiffuse", Map, {Double("level"), Double("probability"), Float("intensity")}));
    add(Described("SettingsEffectErosion", Map, {Int("mode"), Double("radius")}));
    add(Described("SettingsEffectFindEdges", Map, {Double("blend"), Double("sensibility"), Int("type")}));
    add(Described("SettingsEffectFishEye", Map, {Double("deviation"), Float("intensity")}));
    add(Described("SettingsEffectMosaic", Map, {Int("type"), Int("amountVer"), Int("amountHor"), Float("intensity")}));
    add(Described("SettingsEffectGlassMosaic", Map,
                  {Double("angle"),
                   Double("curve", "curve", 0.5)
                       .With("intensity=1")
                       .Note("the field shows the curve weighed by the intensity: 0.5 at intensity 0"),
                   Double("repeatsh"), Double("repeatsv"), Float("intensity")}));
    add(Described("SettingsEffectOilPaint", Map, {Int("radius"), Float("intensity")}));
    add(Described("SettingsEffectStripes", Map, {Int("count"), Double("deep"), Float("intensity")}));
    add(Described("SettingsEffectTelevision70s", Map, {Float("intensity"), Float("stripesWidth")}));
    add(Described("SettingsEffectTwirl", Map,
                  {Double("rt0"), Double("vr"), Double("tt0"), Double("vt"), Float("intensity")}));
    add(Described("SettingsEffectVertigo", Map, {Double("scale"), Double("speed"), Double("intensity")}));
    add(Described("SettingsEffectVHS", Map,
                  {Double("speed"), Double("relief"), Double("smoothness"), Double("shift"),
                   Float("intensity")
                       .Range(0.000001f, std::nullopt)
                       .Unchecked()
                       .Note("SetIntensity raises a smaller value to 0.000001; the string stores it as given")}));
    add(Described("SettingsEffectLightLeaks", Map, {Int("preset"), Float("intensity")}));
    add(Described("SettingsEffectLensFlare", Map, {Int("preset"), Float("intensity")}));
    add(Described("SettingsEffectLensDistortion", Map,
                  {Double("zoom").Note("the field shows the zoom times the intensity"),
                   Double("distortion").Note("the field shows the distortion times the intensity"),
                   Int("member_count", "memberCount"), Double("intensity", "intensity", 1.0)}));
    add(Described("SettingsEffectChromaticAberration", Map, {Float("intensity")}));
    add(Described("SettingsEffectNeonLamp", OptionReader::KeyByKey,
                  {Channel("r", "color", 0, 0), Channel("g", "color", 1, 0), Channel("b", "color", 2, 0),
                   Double("intensity").Range(0, 1).Clamps()},
                  {{OptionGroupKind::AllOrNothing,
                    {"r", "g", "b"},
                    "color",
                    255,
                    "the colour changes only when all three are given"}}));
    add(Described("SettingsEffectRetroArtefacts", Map,
                  {Bool("shake", OptionBoolean::ExactlyOne), Bool("vignetting", OptionBoolean::ExactlyOne),
                   Int("grain"), Int("scratches"), Int("rollerTrack"), Float("intensity")}));
}

} // namespace Zorvan::DescribeDetail
